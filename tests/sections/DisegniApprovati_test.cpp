// The pictures of sections and moment diagrams, held against SVG files that a person has looked at.
#include <string>

#include "SezioniDiProva.h"
#include "drawing/SuperficieRitratta.h"
#include "frame/GeneraleSagomi.h"
#include "sections/DisegniMomento.h"
#include "sections/DisegnoSagoma.h"
#include "sections/SezioneGenerica.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class SagomiApprovati : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }

    static void Approvato(const std::string& nome, const std::string& svg) {
        ConfrontaApprovato("sections/figure/" + nome + ".svg", svg);
    }
    /// The sheet on screen and paper, and the picture beside the entries.
    template <typename S> static void Ritrae(const std::string& nome, S& s) {
        s.InizializzaSezione();
        SuperficieRitratta video(900, 600), carta(190, 277);
        s.PlottaSezione(&video, "frm", dispositivoVideo);
        Approvato(nome + "-video", video.Svg());
        s.PlottaSezione(&carta, "frm", dispositivoStampante);
        Approvato(nome + "-carta", carta.Svg());
        const SagomaDisegnata sagoma = SagomaDi(s);
        const Disegno d = DisegnoSagoma(sagoma);
        Approvato(nome + "-sagoma", InSvg(d, 220, 200, "frm"));
    }
    template <typename S> static void Efficaci(const std::string& nome, S& s) {
        for (std::int16_t quale = 0; quale < 3; ++quale) {
            s.SezioneEfficaceDaPlottare = quale;
            SuperficieRitratta video(900, 600);
            s.PlottaSezione(&video, "FrmClasseDoppioTU", dispositivoVideo);
            Approvato(nome + "-efficace-" + std::to_string(quale), video.Svg());
        }
    }
    StatoUscita prima_;
};

TEST_F(SagomiApprovati, DoppioT) {
    SezioneDoppioT laminato = Ipe200();
    Ritrae("laminato", laminato);
    SezioneDoppioT rastremato = Ipe200();
    rastremato.Designation = "IPN 200";
    rastremato.b = 90;
    rastremato.tw = rastremato.r1 = 7.5;
    rastremato.tf = 11.3;
    rastremato.r2 = 4.5;
    Ritrae("rastremato", rastremato);
    SezioneDoppioT sottile;
    sottile.Designation = "sottile";
    sottile.Saldata = true;
    sottile.TipoAcciaio = "S355 (Fe510)";
    sottile.fy = 355;
    sottile.InizializzaSezioneUtente(nullptr, 900, 400, 6, 10, 5, 300, 14);
    Ritrae("disuguale", sottile);
    Efficaci("disuguale", sottile);
}

TEST_F(SagomiApprovati, CanaliEAngolari) {
    SezioneSagomoU canale;
    canale.Designation = "UPN 200";
    canale.fy = 235;
    canale.h = 200;
    canale.b = 75;
    canale.tw = 8.5;
    canale.tf = canale.r1 = 11.5;
    canale.pendenza = 6;
    canale.Area = 3220;
    SezioneSagomoL angolare;
    angolare.Designation = "L 150x100x10";
    angolare.fy = 235;
    angolare.h = 150;
    angolare.b = 100;
    angolare.t = 10;
    angolare.r1 = 12;
    angolare.r2 = 6;
    angolare.Area = 2420;
    for (const bool corto : {false, true}) {
        SezioneSagomoU u = canale;
        SezioneSagomoL l = angolare;
        const std::string quale = corto ? "-coppia-corta" : "-coppia";
        u.Doppi = l.Doppi = true;
        u.DoppiCorto = l.DoppiCorto = corto;
        u.dDoppi = l.dDoppi = 12;
        u.Area = 2 * u.Area;
        l.Area = 2 * l.Area;
        Ritrae("canale" + quale, u);
        Ritrae("angolare" + quale, l);
    }
    Ritrae("canale", canale);
    Ritrae("angolare", angolare);
    SezioneSagomoU sottile = canale;
    sottile.h = 400;
    sottile.b = 150;
    sottile.tw = 3;
    sottile.tf = 4;
    sottile.r1 = 4;
    sottile.pendenza = 0;
    sottile.fy = 355;
    Ritrae("canale-sottile", sottile);
    Efficaci("canale-sottile", sottile);
}

TEST_F(SagomiApprovati, Momenti) {
    for (std::int16_t pict = 1; pict <= nPict; ++pict) {
        const Disegno forma = DisegnoPict(pict);
        Approvato("forma-" + std::to_string(pict), InSvg(forma, 146, 110, ""));
        const MomentiMembratura y{80e6, pict % 2 == 0 ? -40e6 : 60e6, 50e6, 5e6}, z{10e6, 4e6, 30e6, 0};
        Approvato("momenti-" + std::to_string(pict), InSvg(DisegnoMomenti(y, z, pict), 420, 260, ""));
    }
    for (const int prospetto : {1, 2})
        Approvato("prospetto-" + std::to_string(prospetto), InSvg(DisegnoProspetto(prospetto), 160, 480, ""));
}

} // namespace
