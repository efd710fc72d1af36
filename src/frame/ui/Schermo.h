#pragma once

#include <QList>
#include <QMainWindow>

#include <functional>

namespace sagomi {

/// A window of the program. It is created on first use, lives to the end of the run and keeps its entries
/// while it is hidden. NavigaSchermi alone shows screens and tells them that they have become active.
class Schermo : public QMainWindow {
    Q_OBJECT
public:
    explicit Schermo(const QString& nome);

    /// What the screen does each time it becomes the active one.
    virtual void AllAttivazione() {}

    /// What it shows of the section in use has changed while another screen is in use: computes anew.
    virtual void Aggiorna() {}

    /// Help file of the screen, looked up beside the program.
    [[nodiscard]] virtual QString FileGuida() const { return QStringLiteral("Sagomi.hlp"); }

    /// Leads on from a screen that the user closes; without it the screen hides.
    inline static std::function<void(Schermo&)> alCongedo;

    /// The screen that opened this one; closing goes back to it.
    Schermo* origine = nullptr;

    /// The screens that this one was opened from, the nearest first.
    [[nodiscard]] QList<Schermo*> Catena() const;

    /// The controls Nome_0, Nome_1, ... in order, up to the first index that is missing.
    template <typename T> [[nodiscard]] QList<T*> Vettore(const QString& nome) const {
        QList<T*> controls;
        while (auto* control = findChild<T*>(nome + u'_' + QString::number(controls.size())))
            controls.append(control);
        return controls;
    }

    /// Ends the typing in the entry boxes: what was typed is checked and mended now.
    void ConcludeEntrate();

    /// Size that shows the whole content, with menus and status bar.
    [[nodiscard]] virtual QSize DimensioneContenuto() const;

    /// Gives the window fonts of a ratio to those of the desktop, smaller where its content would not fit
    /// into the desktop, and the size of its content; one that has both already stays as the user sized it.
    void Adatta(double rapporto);

    /// The ratio of its fonts to those of the desktop.
    [[nodiscard]] double Rapporto() const { return rapporto_; }

    /// Fonts of at most a ratio, as large as the content fits into a room; they do not get smaller than can
    /// be read.
    /// @return the ratio
    double ScalaFino(double rapporto, QSize stanza);

protected:
    /// To be called once the controls stand: where the window is smaller than its content, the content
    /// scrolls; labels show plain text; Enter presses the button that has the focus.
    void PreparaContenuto();
    /// Sizes the window to its content, and to the given size where that is larger, inside the desktop.
    void DimensionaIniziale(QSize almeno);

    /// Gives the window and its menus fonts of a ratio to those of the desktop.
    virtual void ScalaContenuto(double rapporto);

    /// Hides the screen and goes back to the one that it came from.
    void closeEvent(QCloseEvent* event) override;
    /// Esc leaves a screen that was opened from another.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ContieneTutto(QSize stanza);

    double rapporto_ = 1;
    double chiesto_ = 0; ///< ratio of the last Adatta
    QSize stanza_;       ///< of the desktop then
    QSize almeno_;
};

} // namespace sagomi
