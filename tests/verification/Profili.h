#pragma once

#include <gtest/gtest.h>

#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi::verifica {

/// Partial factors of EC3, and messages that nobody asked for fail the test.
class Ambiente : public testing::Test {
protected:
    Ambiente() {
        RipristinaGenerale();
        Normativa = normativaEC3;
        ImpostaGamma();
    }
    void TearDown() override {
        EXPECT_TRUE(registratore.testi.empty()) << registratore.testi.front();
        RipristinaGenerale();
    }

    prove::Registratore registratore;
};

/// A rolled double-T of its dimensions; the constants are those of its outline, the torsion constant that of
/// the program's formula [mm, N/mm2].
inline SezioneDoppioT Laminata(const char* nome, double fy, double h, double b, double tw, double tf,
                               double r1, double r2 = 0) {
    SezioneDoppioT s;
    s.Designation = nome;
    s.TipoAcciaio = "S235 (Fe360)";
    s.fy = fy;
    s.h = h;
    s.b = b;
    s.tw = tw;
    s.tf = tf;
    s.r1 = r1;
    s.r2 = r2;
    s.InizializzaSezioneAcciaioCls();
    const SezioneGenerica& g = *s.SezioneGenericaCorrente;
    s.Jy = g.JotaXG;
    s.JT = s.JotaT();
    s.Jw = s.JotaOmega();
    s.InizializzaSezione();
    return s;
}

/// A welded double-T of plates without fillets.
inline SezioneDoppioT Saldata(double fy, double h, double b, double tw, double tf, double bInf = 0,
                              double tInf = 0) {
    SezioneDoppioT s;
    s.Designation = "saldata";
    s.TipoAcciaio = "S355 (Fe510)";
    s.Saldata = true;
    s.fy = fy;
    if (bInf > 0)
        s.InizializzaSezioneUtente(nullptr, h, b, tw, tf, 0, bInf, tInf);
    else
        s.InizializzaSezioneUtente(nullptr, h, b, tw, tf, 0);
    return s;
}

} // namespace sagomi::verifica
