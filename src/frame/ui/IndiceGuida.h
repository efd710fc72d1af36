#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

namespace sagomi {

/// The help files: HTML whose headings begin its topics. Places carry the names of screens and controls.

/// A topic of a help file, or a word of its index.
struct ArgomentoGuida {
    QString file;
    QString ancora; ///< name of its place
    QString titolo;
    int livello = 2; ///< of the heading; 0 for a word of the index
    QString corpo{}; ///< HTML below the heading
};

/// A help file beside the program, found without regard to the case of its letters; empty where there is none
/// or it cannot be read, or is longer than 16 MB.
QString LeggeGuida(const QString& file);

/// Its topics in their order.
QList<ArgomentoGuida> ArgomentiGuida(const QString& file, const QString& html);

/// What stands bold right behind a place, and the topics, by the alphabet.
QList<ArgomentoGuida> IndiceGuida(const QString& file, const QString& html);

/// The search of topics. What it compares is made when it is first needed and kept: plain texts take far
/// longer to make than a help file to read.
class RicercaGuida {
public:
    RicercaGuida() = default;
    explicit RicercaGuida(QList<ArgomentoGuida> argomenti);

    /// The topics that hold all words, those with all of them in their title first. Case and accents do not
    /// count; no words find everything.
    QList<ArgomentoGuida> Cerca(const QString& parole);

private:
    struct Cercato {
        QString titolo;
        std::optional<QString> testo;
    };
    bool NelTitolo(qsizetype i, const QStringList& parole);
    bool Contiene(qsizetype i, const QStringList& parole);

    QList<ArgomentoGuida> argomenti_;
    QList<Cercato> cercati_; ///< letters as they are compared; empty before the first word
};

/// One search among topics.
QList<ArgomentoGuida> CercaGuida(const QList<ArgomentoGuida>& argomenti, const QString& parole);

/// The place of a control in a help file: its own, else that of the nearest part of the screen around it,
/// else the screen's, else that of the window below a dialog. Names are looked for as "screen.control", then
/// in the part about the screen or later, since screens share names of controls; an index (_0) may be left
/// out. Empty: there is none.
QString AncoraDi(const QString& html, const QWidget* controllo);

/// The place of a topic by its name, "screen.control" or less, by the same rule.
QString AncoraDi(const QString& html, const QString& argomento);

/// Where the tables of messages explain one.
struct PostoMessaggio {
    QString ancora;  ///< of the table; empty: the file does not know the message
    QString parole;  ///< the longest part of the row's first cell that the message contains
    QString cella{}; ///< the text of that cell
    int lettere =
        0; ///< of the message that the row is about, without what is left out: the most are the nearest
};

/// The row of a message as it is told, with its values, in the tables whose head is "Messaggio". Their first
/// cells hold several messages parted by ";", values left out as "..."; all the rest of one of them stands in
/// the message, in its order.
PostoMessaggio PostoDelMessaggio(const QString& html, const QString& testo);

} // namespace sagomi
