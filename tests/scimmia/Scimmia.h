#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

#include <functional>
#include <random>

class QAction;
class QMenu;
class QWidget;

namespace sagomi::prove {

class Sorveglianza;

/// Plays with the windows of the program: clicks, keys, texts, the wheel, menus, sizes, boxes. What it does
/// follows from its seed; it likes what it has used least, and seldom ends the program. Each event is one
/// turn of the loop in force, so it goes on inside boxes, menus and long work.
class Scimmia : public QObject {
public:
    Scimmia(Sorveglianza& sorveglianza, int eventi, unsigned seme);

    /// One life of the program: its start, then whatever comes, to its end.
    void Vive(const std::function<void()>& avvia);
    /// All its events are done.
    [[nodiscard]] bool Finito() const { return fatti_ >= eventi_; }

    /// A file for a dialog: sound, broken, none, or in the place of one something else.
    QString File(bool daLeggere, const QString& cartella);
    /// The windows that it has met.
    [[nodiscard]] const QSet<QString>& Incontrate() const { return incontrate_; }
    /// Whether a print dialog is accepted.
    bool Si(int suCento) { return Caso(100) < suCento; }

private:
    void Comincia();
    void Passo();
    void Agisce();
    void Chiude();
    void SulMenu(QMenu& menu);
    void SulDialogo(QWidget& dialogo);
    void SulloSchermo();
    void MuoveFinestre(QWidget& finestra);
    void Clicca(QWidget& w);
    void Scrive(QWidget& w);
    void Preme(QWidget& w);
    void Gira(QWidget& w);
    void MenuContestuale(QWidget& w);
    void VoceDiMenu(QWidget& finestra);
    QAction* Voce(const QList<QAction*>& voci, const QWidget& w);

    int Caso(int n) { return static_cast<int>(generatore_() % static_cast<unsigned>(n)); }
    template <typename L> const auto& Uno(const L& lista) {
        return lista[Caso(static_cast<int>(lista.size()))];
    }
    template <typename L> const auto& MenoUsato(const L& lista, auto nome);
    /// Whether it does not end the program now.
    bool Rimane(bool fine) { return fine && Si(90); }
    QWidget* Finestra();
    QWidget* Controllo(QWidget& finestra);
    void Racconta(const QString& evento, const QWidget* w = nullptr);

    Sorveglianza& sorveglianza_;
    std::mt19937 generatore_;
    int eventi_;
    QHash<QString, int> usi_; ///< of controls and entries of menus
    QSet<QString> incontrate_;
    int fatti_ = 0;
    int livello_ = 0; ///< of the loop in force while nothing stands in front of the screens
    int inFondo_ = 0; ///< turns since the end of the events
};

} // namespace sagomi::prove
