#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "composite/AcciaioCls.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "geometry/Poligono.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi::prove {

/// A welded double-T of plates, the section in use, prepared for a composite beam.
inline std::shared_ptr<SezioneDoppioT> InUso(double fy, double h, double b, double tw, double tf,
                                             double bInf = 0, double tInf = 0) {
    auto s = std::make_shared<SezioneDoppioT>();
    s->Designation = "Saldata";
    s->TipoAcciaio = "S235 (Fe360)";
    s->fy = fy;
    s->h = h;
    s->b = b;
    s->tw = tw;
    s->tf = tf;
    s->Saldata = true;
    s->SaldataAsimm = bInf > 0;
    s->bAlaInf = bInf > 0 ? bInf : b;
    s->tAlaInf = bInf > 0 ? tInf : tf;
    SezioneCorrente = s;
    AcciaioCls::InizializzaTrave();
    return s;
}

/// A beam of the section in use with deck, bars and a moment of its check's sign, to be drawn; its slab
/// lies below the steel where hc is below 0.
inline AcciaioCls TraveDaDisegnare(std::int16_t tipo, std::int16_t verifica, double hc = 120) {
    AcciaioCls t;
    t.TipoSoletta = tipo;
    t.TipoVerifica = verifica;
    t.hc = hc;
    t.c = hc < 0 ? -40 : 30;
    t.beff = 1000;
    t.As = 800;
    t.ha = 55;
    t.bb = 60;
    t.bs = 90;
    t.iNervature = 200;
    t.b0t = 80;
    t.Msd = verifica == sluNegativo || verifica == metodoNNegativo ? -100e6 : 150e6;
    return t;
}

/// Global settings back to their start after each test; EC3, so that GammaM0 is 1.
class AmbienteTrave : public testing::Test {
protected:
    AmbienteTrave() {
        Normativa = normativaEC3;
        ImpostaGamma();
    }
    void TearDown() override {
        RipristinaGenerale();
        CarDecimale = '.';
        CarMigliaia = ',';
    }

    Registratore registratore;
};

} // namespace sagomi::prove
