#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <string>

#include "frame/ui/FileDialogo.h"

class QMenu;

namespace sagomi {

/// What a screen that keeps its work in files has to do with them: the file's name on the caption, whether
/// there is work that is not saved, the question before it is lost, the files last used.
class DocumentoSchermo : public QObject {
    Q_OBJECT
public:
    /// The kind of file: its description for the dialogs, and its extension, without the dot, as it is spelt
    /// on opening and on saving.
    struct Specie {
        std::string descrizione, estensioneApre, estensioneSalva;
    };

    /// The screen owns it. The caption becomes that of a new document.
    DocumentoSchermo(SchermoConFile& schermo, Specie specie);
    ~DocumentoSchermo() override;

    /// The user has changed something, which is not saved now. Reading and saving end by themselves with
    /// nothing changed.
    void Modifica() { modificato_ = true; }
    [[nodiscard]] bool Modificato() const { return modificato_; }

    /// Path of the file in hand; empty for a document that has none.
    [[nodiscard]] const QString& File() const { return file_; }

    /// Whether what is there may go: nothing is unsaved, or the user, asked, says so.
    [[nodiscard]] bool PuoPerdere() const;

    /// A new document, without a file, also to close the one in hand.
    /// @param svuota  empties the content of the screen
    /// @return false when the user keeps what is there
    bool Nuovo(const std::function<void()>& svuota);

    /// Opens a file that the user chooses, or one that is known. A file that does not open, or that is not
    /// whole, leaves everything as it was.
    bool Apre();
    bool Apre(const QString& file);

    /// Saves under a name that the user chooses; the one in hand is proposed.
    bool Salva();
    /// Saves into the file in hand; where there is none, as Salva.
    bool SalvaSubito();

    /// Fills a menu with the files last used, the latest first ("mnuRecenti_0", ...), and keeps it so.
    void CollegaRecenti(QMenu& menu);

    /// Asks about every document of the program that has unsaved work.
    /// @return false as soon as one is to be kept
    static bool TuttiDaLasciare();

private:
    bool Muove(const std::function<bool()>& moto);
    void RicordaFile();
    void ElencaRecenti();
    [[nodiscard]] QStringList& Recenti() const;

    SchermoConFile& schermo_;
    Specie specie_;
    QString file_;
    bool modificato_ = false;
    QMenu* recenti_ = nullptr;
};

/// The files last used, by the object names of the screens, the latest first.
QHash<QString, QStringList>& FileRecenti();

} // namespace sagomi
