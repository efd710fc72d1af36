#include "sections/SezioneDoppioT.h"

#include <algorithm>
#include <cmath>

#include "sections/ContornoEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/LarghezzeEfficaci.h"
#include "sections/SezioneGenerica.h"
#include "sections/TracciaContorno.h"

namespace sagomi {

namespace {

constexpr std::string_view tipoForo = "DoppioT"; ///< the web is cut from both faces

struct Piatto {
    double b, t;
};

Profilo QuartoLaminato(const SezioneDoppioT& s) {
    const ArchiAla& archi = ArchiDiPendenza(s.pf());
    Profilo q;
    q.Punto(s.b / 2, 0);
    if (s.r2 > 0)
        q.Arco(s.b / 2 - s.r2, s.tf1() - s.r2 * archi.tangenteMezza, s.r2, archi.punta);
    else
        q.Punto(s.b / 2, s.tf);
    q.Arco(s.tw / 2 + s.r1, s.tf2() + s.r1 * archi.coseno, s.r1, archi.raccordo);
    return q;
}

Profilo QuartoSaldato(const SezioneDoppioT& s, const Piatto& ala) {
    Profilo q;
    q.Punto(ala.b / 2, 0);
    q.Punto(ala.b / 2, ala.t);
    q.Punto(s.tw / 2 + s.r, ala.t);
    q.Punto(s.tw / 2, ala.t + s.r);
    return q;
}

/// The outline is computed and has just these vertices: it need not be computed once more.
bool HaVertici(const SezioneGenerica* sezione, const std::vector<double>& x, const std::vector<double>& y) {
    return sezione != nullptr && sezione->Area > 0 && sezione->Poligono && sezione->Poligono->CoordX() == x &&
           sezione->Poligono->CoordY() == y;
}

/// Goes round counter-clockwise from the lower right corner.
std::int16_t Percorre(const Profilo& inf, const Profilo& sup, const PostoContorno& posto,
                      std::vector<double>& x, std::vector<double>& y) {
    Percorso percorso(x, y, posto, 2 * (inf.Numero() + sup.Numero()));
    percorso.InBasso(inf);
    percorso.InAlto(sup);
    percorso.InAltoASinistra(sup);
    percorso.InBassoASinistra(inf);
    return static_cast<std::int16_t>(x.size());
}

} // namespace

double SezioneDoppioT::pf() const { return r2 > 0 ? 0.14 : 0; }

double SezioneDoppioT::tf1() const { return r2 > 0 ? tf - pf() * b / 4 : double(tf); }

double SezioneDoppioT::tf2() const {
    if (!(r2 > 0))
        return tf;
    const ArchiAla& archi = ArchiDiPendenza(pf());
    const double u = b / 2 - tw / 2 - r1 * archi.tangenteMezza * archi.coseno;
    return pf() * u + tf1();
}

void SezioneDoppioT::Coordinate(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double x0,
                                double y0, double scala) const {
    if (Saldata) {
        CoordinateSaldata(x, y, n, x0, y0, scala);
        return;
    }
    const Profilo q = QuartoLaminato(*this);
    n = Percorre(q, q, {h, x0, y0, scala}, x, y);
}

void SezioneDoppioT::CoordinateSaldata(std::vector<double>& x, std::vector<double>& y, std::int16_t& n,
                                       double x0, double y0, double scala) const {
    const Profilo sup = QuartoSaldato(*this, {b, tf});
    const PostoContorno posto = {h, x0, y0, scala};
    n = SaldataAsimm ? Percorre(QuartoSaldato(*this, {bAlaInf, tAlaInf}), sup, posto, x, y)
                     : Percorre(sup, sup, posto, x, y);
}

void SezioneDoppioT::AlaEfficace(std::vector<double>& x, std::vector<double>& y, double kS, double t,
                                 double cAla, double quota, bool destra, bool sinistra) const {
    const double taglio = TaglioAla(cAla, t, fy, kS);
    const ParteContorno ala = {h / 2, quota > h / 2};
    double punta = 0;
    for (std::size_t i = 0; i < x.size(); ++i)
        if ((y[i] > ala.livello) == ala.sopra)
            punta = std::max(punta, std::abs(x[i]));
    if (destra)
        TagliaPunta(x, y, ala, punta - taglio, true);
    if (sinistra)
        TagliaPunta(x, y, ala, taglio - punta, false);
}

// ENV 1993-1-1 5.3.5 in uniform compression.
void SezioneDoppioT::CoordinateComp4() {
    auto& [x, y, n] = BozzaContorno();
    Coordinate(x, y, n);
    if (ClasseAlaC == 4)
        AlaEfficace(x, y, kSigmaAlaCompressa, tf, c, h - tf / 2, true, true);
    if (ClasseAlaInfC == 4)
        AlaEfficace(x, y, kSigmaAlaCompressa, tAlaInf, cAlaInf, tAlaInf / 2, true, true);
    if (ClasseWebC == 4) {
        const double beff = Rho(d, tw, fy, kSigmaAnimaCompressa) * d;
        ToglieAnima(x, y, n, h / 2 - d / 2 + beff / 2, d - beff, tipoForo);
    }
    CalcolaContorno(SezioneComp4, x, y, n);
}

// ENV 1993-1-1 5.3.5: the flange first, then the web on the neutral axis that is left.
void SezioneDoppioT::CoordinateWy4() {
    auto& [x, y, n] = BozzaContorno();
    Coordinate(x, y, n);
    if (ClasseAlaC == 4)
        AlaEfficace(x, y, kSigmaAlaCompressa, tf, c, h - tf / 2, true, true);
    const bool intera = ClasseWebF == 4 && HaVertici(SezioneGenericaCorrente.get(), x, y);
    const SezioneGenerica& contorno =
        intera ? *SezioneGenericaCorrente : CalcolaContorno(SezioneWy4, x, y, n);
    if (ClasseWebF != 4)
        return;

    const double ySup = h - tf - (Saldata ? r : r1);
    double be1 = 0;
    double be2 = 0;
    const double psi = be1_be2Anima(contorno, d, ySup, be1, be2);
    if (!(psi <= 1)) {
        CalcolaContorno(SezioneWy4, x, y, n);
        return;
    }
    const double compressa = psi < 0 ? d / (1 - psi) : d;
    ToglieAnima(x, y, n, ySup - compressa + be2, compressa - be1 - be2, tipoForo);
    CalcolaContorno(SezioneWy4, x, y, n);
}

// ENV 1993-1-1 5.3.5, the compressed tips alone.
void SezioneDoppioT::CoordinateWz4() {
    auto& [x, y, n] = BozzaContorno();
    Coordinate(x, y, n);
    if (ClasseAlaC == 4)
        AlaEfficace(x, y, kSigmaAlaInflessa, tf, c, h - tf / 2, true, false);
    if (ClasseAlaInfC == 4)
        AlaEfficace(x, y, kSigmaAlaInflessa, tAlaInf, cAlaInf, tAlaInf / 2, true, false);
    CalcolaContorno(SezioneWz4, x, y, n);
}

double SezioneDoppioT::be1_be2Anima(const SezioneGenerica& contorno, double bp, double ySup, double& be1,
                                    double& be2) const {
    const double psi = PsiAnima(contorno, bp, ySup);
    be1_be2Anima(psi, bp, be1, be2);
    return psi;
}

void SezioneDoppioT::be1_be2Anima(double psi, double bp, double& be1, double& be2) const {
    const StrisceEfficaci strisce = StrisceDelPiatto(psi, bp, tw, fy);
    be1 = strisce.be1;
    be2 = strisce.be2;
}

double SezioneDoppioT::kSigma(double psi) { return kSigmaPiatto(psi); }

} // namespace sagomi
