#include "screens/ColonnaInstabilita.h"

#include <array>

#include "frame/GeneraleSagomi.h"
#include "frame/Unita.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Schermo.h"
#include "sections/ColonnaInstabilita.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

/// Writes labels of one screen by their names.
class Scrittore {
public:
    Scrittore(Schermo& screen, int axis) : schermo_(screen), asse_(axis) {}

    void Comune(const char* name, const std::string& text) const { Scrive(QString::fromLatin1(name), text); }

    void Colonna(const char* name, const std::string& text) const {
        Scrive(QString::fromLatin1(name) + u'_' + QString::number(asse_), text);
    }

private:
    void Scrive(const QString& name, const std::string& text) const {
        if (auto* label = schermo_.findChild<QLabel*>(name))
            Mostra(label, text);
    }

    Schermo& schermo_;
    int asse_;
};

void ScriveColonna(const Scrittore& su, double lamda, const std::string& curva, const ColonnaCalcolata& c) {
    su.Colonna("Lbl_Lamda", Formato("0.0#", lamda));
    su.Colonna("Lbl_LamdaS", Formato("0.0###", c.lamdaSegnato));
    su.Colonna("Lbl_Curva", curva);
    su.Colonna("Lbl_Alfa", Formato("0.0#", c.alfa));
    su.Colonna("Lbl_Fi", Formato("0.0###", c.fi));
    for (const char* name : {"Lbl_chi", "Lbl_Chi"}) // as the screen calls it
        su.Colonna(name, Formato("0.0###", c.chi));
    su.Colonna("Lbl_Ncr", lamda == 0 ? std::string(limiteInfinito) : Formato("0.0##", N_a_kN(c.Ncr)));
    su.Colonna("Lbl_NbRd", Formato("0.0##", N_a_kN(c.NbRd)));
}

} // namespace

void ColonnaInstabilita(double lamda, int asse, Schermo& schermo) {
    constexpr std::array<const char*, 3> assi{"yy", "zz", "zz"}; // v-v takes the curve of z-z
    SullaSezioneInUso([&](const auto& section) {
        const double betaA = section.betaA();
        const Scrittore su(schermo, asse);
        su.Comune("lblGM1", TestoPiano(GammaM1));
        su.Comune("Lbl_betaA", Formato("0.0##", betaA));
        const std::string curva = section.CurvaInstabilita(assi.at(static_cast<std::size_t>(asse)));
        ScriveColonna(su, lamda, curva, CalcolaColonna(lamda, section.fy, betaA, section.Area, curva));
    });
}

} // namespace sagomi
