#pragma once

#include <QFrame>

class QLabel;
class QToolButton;

namespace sagomi {

/// Advice on what a screen shows, in a tinted panel of its own with a close mark. It takes room only while
/// there is something to say; what has been closed stays so until something else is to be said.
class PannelloConsiglio : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString nome READ Nome WRITE ImpostaNome)
    Q_PROPERTY(QString testo READ Testo WRITE Mostra)
public:
    explicit PannelloConsiglio(QWidget* parent = nullptr);

    /// Object name of the text, "LblNota" say; that of the close mark is "CmdChiudi" in front of it.
    [[nodiscard]] QString Nome() const;
    void ImpostaNome(const QString& nome);

    [[nodiscard]] QString Testo() const;
    /// Says something; nothing hides the panel.
    void Mostra(const QString& testo);
    /// Holds a text of its own kind, a long one that scrolls say, in the place of the plain one.
    void Ospita(QWidget* corpo);
    /// Shows the advice again, also where it has been closed, or takes it away.
    void Apre(bool aperto);

signals:
    void chiuso(); ///< by its mark

protected:
    void changeEvent(QEvent* event) override;

private:
    void Appare(bool visibile);
    void Colora();

    QLabel* testo_;
    QWidget* corpo_; ///< what is shown: the text, or what stands in its place
    QToolButton* chiudi_;
    bool colorando_ = false;
};

} // namespace sagomi
