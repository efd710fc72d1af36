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
