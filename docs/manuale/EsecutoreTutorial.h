#pragma once

#include <QStringList>

#include <functional>

#include "PassiTutorial.h"
#include "frame/Messaggi.h"

class QWidget;

namespace sagomi {

class Schermo;

/// Works through the tutorial with the real screens, by object names. The program has been started; messages
/// and file dialogs are answered here while it lives.
class EsecutoreTutorial {
public:
    /// @param cartella  where the files of the tutorial are written
    explicit EsecutoreTutorial(QString cartella);
    ~EsecutoreTutorial();
    EsecutoreTutorial(const EsecutoreTutorial&) = delete;
    EsecutoreTutorial& operator=(const EsecutoreTutorial&) = delete;

    /// Takes the picture of a screen.
    std::function<void(const QString& nome, QWidget& schermo)> foto;

    void Esegue(const QList<PassoTutorial>& passi);

    /// What the text says and the program does not: with the line of the text.
    [[nodiscard]] const QStringList& Errori() const { return errori_; }

private:
    void PreparaRisposte(const QList<PassoTutorial>& passi, qsizetype seguente);
    void Esegue(const PassoTutorial& p);
    void Agisce(const PassoTutorial& p);
    void Preme(const PassoTutorial& p);
    void Sceglie(const PassoTutorial& p);
    void Legge(const PassoTutorial& p);
    void Sbaglia(const PassoTutorial& p, const QString& perche);
    void NullaDaDire(const PassoTutorial& p);
    template <typename T> T* Controllo(const PassoTutorial& p);
    Schermo* SchermoDi(const PassoTutorial& p);

    QString cartella_;
    QString file_;     ///< to be chosen in the next dialog
    QString progetto_; ///< to be given to the next report
    QStringList detti_, errori_;
    PortaMessaggi precedente_;
    int foto_ = 0;
};

} // namespace sagomi
