// Class 4 of the shipped welded sections, a second time: from rectangles and the triangles of the fillets,
// where the program cuts an outline. ENV 1993-1-1 5.3.5.

#include <cmath>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "catalogue/RigaDoppioT.h"
#include "frame/GeneraleSagomi.h"
#include "sections/AreaEfficace.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;

namespace {

constexpr double fy = 355;
const double eps = std::sqrt(235 / fy);

constexpr double filo = 0.02; ///< of the web, holds the two parts of a cut outline together [mm]

double RhoDi(double snellezza, double k) {
    const double lambda = snellezza / (28.4 * eps * std::sqrt(k));
    return lambda <= 0.673 ? 1 : (lambda - 0.22) / (lambda * lambda);
}

/// A rectangle, or a pair of fillets, on the axis: area, height of its centre, second moment about that.
struct Pezzo {
    double A, y, I;
};

Pezzo Rettangolo(double b, double y0, double y1) {
    const double t = y1 - y0;
    return {b * t, (y0 + y1) / 2, b * t * t * t / 12};
}

struct Insieme {
    double A = 0, yG = 0, I = 0;
};

Insieme Somma(const std::vector<Pezzo>& pezzi) {
    Insieme s;
    for (const Pezzo& p : pezzi) {
        s.A += p.A;
        s.yG += p.A * p.y;
    }
    s.yG /= s.A;
    for (const Pezzo& p : pezzi)
        s.I += p.I + p.A * std::pow(p.y - s.yG, 2);
    return s;
}

struct Lamiere {
    double h, b, tf, tw, r, b2, tf2;

    explicit Lamiere(const SezioneDoppioT& s)
        : h(s.h), b(s.b), tf(s.tf), tw(s.tw), r(s.r), b2(s.SaldataAsimm ? s.bAlaInf : s.b),
          tf2(s.SaldataAsimm ? s.tAlaInf : s.tf) {}

    [[nodiscard]] double Basso() const { return tf2 + r; } ///< lower end of the web, above the fillet
    [[nodiscard]] double Alto() const { return h - tf - r; }
    [[nodiscard]] double Sporgenza() const { return b / 2 - tw / 2 - r; }
    [[nodiscard]] double SporgenzaInf() const { return b2 / 2 - tw / 2 - r; }
    [[nodiscard]] double Snellezza() const { return (Alto() - Basso()) / tw; }

    /// Everything but the web between the fillets, with the upper flange narrower by what is lost of it.
    [[nodiscard]] std::vector<Pezzo> Ali(double persaSup, double persaInf) const {
        const double I = std::pow(r, 4) / 36 * 2; // of two right triangles
        return {Rettangolo(b - 2 * persaSup, h - tf, h),
                Rettangolo(b2 - 2 * persaInf, 0, tf2),
                Rettangolo(tw, h - tf - r, h - tf),
                Rettangolo(tw, tf2, tf2 + r),
                {r * r, h - tf - r / 3, I},
                {r * r, tf2 + r / 3, I}};
    }
};

double Persa(double c, double t, double limite) {
    return c / t / eps > limite ? (1 - RhoDi(c / t, 0.43)) * c : 0;
}

double AreaCompressa(const Lamiere& l) {
    auto pezzi = l.Ali(Persa(l.Sporgenza(), l.tf, 14), Persa(l.SporgenzaInf(), l.tf2, 14));
    const double rho = l.Snellezza() / eps > 42 ? RhoDi(l.Snellezza(), 4) : 1;
    const double d = l.Alto() - l.Basso();
    pezzi.push_back(Rettangolo(l.tw, 0, rho * d));
    pezzi.push_back(Rettangolo(filo, 0, (1 - rho) * d));
    return Somma(pezzi).A;
}

double KDi(double psi) {
    if (psi < -1)
        return 5.98 * std::pow(1 - psi, 2);
    return psi > -1 ? 7.81 - 6.29 * psi + 9.78 * psi * psi : 23.9;
}

double ModuloInflesso(const Lamiere& l) {
    auto pezzi = l.Ali(Persa(l.Sporgenza(), l.tf, 14), 0);
    auto intera = pezzi;
    intera.push_back(Rettangolo(l.tw, l.Basso(), l.Alto()));
    const double asse = Somma(intera).yG;
    double lunga = l.Alto() - asse; // compressed
    if (l.Snellezza() / eps > 124) {
        double psi = (l.Basso() - asse) / (l.Alto() - asse);
        if (std::abs(psi + 1) < 1e-9)
            psi = -1;
        lunga *= RhoDi(l.Snellezza(), KDi(psi));
    }
    pezzi.push_back(Rettangolo(l.tw, l.Basso(), asse + 0.6 * lunga));
    pezzi.push_back(Rettangolo(filo, asse + 0.6 * lunga, l.Alto() - 0.4 * lunga));
    pezzi.push_back(Rettangolo(l.tw, l.Alto() - 0.4 * lunga, l.Alto()));
    const Insieme e = Somma(pezzi);
    return e.I / (l.h - e.yG);
}

TEST(SaldateClasse4, AgreeWithRectanglesAndTriangles) {
    int compresse = 0, inflesse = 0, ali = 0;
    for (const auto& [schermo, righe] : {std::pair{"frmSaldati", RigheDoppioT::Saldate},
                                         {"frmSaldatiAsimm", RigheDoppioT::SaldateAsimmetriche}}) {
        const auto& fogli = FamigliaDi(schermo).fogli;
        Lettore l;
        l.DatabaseName(SAGOMI_BIN "/Sagomi.xls");
        l.RecordSource(ComponeQuery(schermo, {fogli.begin(), fogli.end()}, 0));
        for (l.Refresh(); !l.EOF_(); l.MoveNext()) {
            const auto s = std::make_shared<SezioneDoppioT>();
            SezioneCorrente = s;
            LeggeRiga(l, *s, righe);
            s->fy = fy;
            InizializzaConAreaEfficace(*s);
            const Lamiere lamiere(*s);
            if (s->ClasseCompressione == 4) {
                const double A = AreaCompressa(lamiere);
                EXPECT_NEAR(s->SezioneComp4->Area, A, 1e-6 * A) << s->Designation;
                ++compresse;
                ali += s->ClasseAlaC == 4;
            }
            if (s->ClasseFlessioneY == 4) {
                const double W = ModuloInflesso(lamiere);
                EXPECT_NEAR(s->WyEff, W, 1e-6 * W) << s->Designation;
                ++inflesse;
            }
        }
    }
    RipristinaGenerale();
    EXPECT_GT(compresse, 100);
    EXPECT_GT(inflesse, 20);
    EXPECT_GT(ali, 5);
}

} // namespace
