#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "composite/AcciaioCls.h"
#include "drawing/Grafica.h"
#include "drawing/Quote.h"
#include "drawing/TavolaDisegno.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "geometry/Poligono.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

// Layout, in heights of the text.
constexpr double interlinea = 1.7;
constexpr double quotaFuori = 4.5;  ///< of dimension lines, from the piece
constexpr double asseTensioni = 13; ///< of the stresses, from the piece
constexpr double mezzeTensioni = 5; ///< width of the greatest stress
constexpr double margineSinistro = 11;
constexpr double margineDestro = 27;
constexpr double margineAlto = 9;
constexpr double margineBasso = 3; ///< besides the lines of text
constexpr double oltreAsse = 1;

constexpr std::int16_t pennaTrazione = 9;
constexpr std::int16_t pennaCompressione = 12;
constexpr double passoBarre = 150; ///< mm, of the bars that are drawn

/// How a part is hatched: angle in degrees, spacing in parts of that of tensioned steel.
struct Retino {
    double angolo, passo;
    std::int16_t colore;
};
constexpr Retino acciaioIgnoto{45, 1, pennaGrigia};
constexpr Retino acciaioCompresso{45, 1, pennaCompressione};
constexpr Retino acciaioTeso{135, 1, pennaTrazione};
constexpr Retino clsIgnoto{30, 3, pennaGrigia};
constexpr Retino clsCompresso{30, 2, pennaCompressione};
constexpr Retino clsTeso{150, 4, pennaGrigia}; ///< cracked: it carries nothing

std::string Cifre(double valore) {
    std::string testo = FormatoCifre(4, valore);
    return testo.erase(0, testo.find_first_not_of(' '));
}

/// A rectangle of stress, or its trapezoid: from the axis to s1 at y1 and s2 at y2.
struct Blocco {
    double y1, s1, y2, s2;
};

class DisegnoMisto {
public:
    DisegnoMisto(const AcciaioCls& t, Superficie* oggetto, std::string_view dispositivo)
        : t_(t), acciaio_(*t.Sezione->SezioneGenericaCorrente->Poligono), riquadro_(Riquadro(t, acciaio_)),
          righe_(Righe(t)), margini_(Margine(righe_)), tavola_(oggetto, dispositivo, riquadro_, margini_),
          a_(tavola_.AltezzaTesto()), quote_(a_), xTensioni_(riquadro_[1] + asseTensioni * a_) {}

    /// xMin, xMax, yMin, yMax of steel and slab.
    static std::array<double, 4> Riquadro(const AcciaioCls& t, const Poligono& acciaio) {
        const std::array<double, 4> a = acciaio.BoundingBox();
        const std::array<double, 4> s = t.Soletta->BoundingBox();
        return {std::min(a[0], s[0]), std::max(a[1], s[1]), std::min(a[2], s[2]), std::max(a[3], s[3])};
    }

    void Traccia() const {
        Retini();
        Contorni();
        Barre();
        Misure();
        if (Calcolata()) {
            AsseNeutro();
            Tensioni();
        }
        Testi();
    }

private:
    [[nodiscard]] bool Calcolata() const { return t_.AcciaioCompresso || t_.AcciaioTeso; }
    [[nodiscard]] bool Plastica() const { return t_.TipoVerifica < metodoNPositivo; }

    static std::vector<std::string> Righe(const AcciaioCls& t) {
        std::vector<std::string> righe{"As = " + TestoPiano(t.As) + " mm2"};
        if (!t.AcciaioCompresso && !t.AcciaioTeso)
            return righe;
        if (t.TipoVerifica < metodoNPositivo)
            righe.push_back("MplRd = " + Cifre(Nmm_a_kNm(t.MplRd)) + " kNm");
        else
            righe.push_back("Jid = " + Cifre(mm4_a_cm4(t.Jid)) + " cm4");
        righe.push_back("Vl = " + Cifre(N_a_kN(t.Vl)) + " kN");
        righe.push_back("asse neutro a " + Cifre(t.yNeutroDaSopra()) + " mm dal bordo sup.");
        return righe;
    }

    static std::array<Margini, 1> Margine(const std::vector<std::string>& righe) {
        const double testi = static_cast<double>(righe.size()) * interlinea;
        return {Margini{margineSinistro, margineAlto, margineDestro, margineBasso + testi}};
    }

    void Tratteggia(const Poligono& parte, const Retino& retino) const {
        const double larga = std::max(riquadro_[1] - riquadro_[0], riquadro_[3] - riquadro_[2]);
        const double passo = std::max(t_.Sezione->h / 30, larga / 200);
        parte.Tratteggia(retino.angolo, -passo * retino.passo, retino.colore);
    }

    /// The parts of one material, or all of it where it has none.
    void Retini(const Poligono& intero, const std::shared_ptr<Poligono>& compresso, const Retino& comprime,
                const std::shared_ptr<Poligono>& teso, const Retino& tende, const Retino& ignoto) const {
        if (compresso)
            Tratteggia(*compresso, comprime);
        if (teso)
            Tratteggia(*teso, tende);
        if (!compresso && !teso)
            Tratteggia(intero, ignoto);
    }

    void Retini() const {
        LineaStilePlt(spessoreFine);
        Retini(*t_.Soletta, t_.ClsCompresso, clsCompresso, t_.ClsTeso, clsTeso, clsIgnoto);
        Retini(acciaio_, t_.AcciaioCompresso, acciaioCompresso, t_.AcciaioTeso, acciaioTeso, acciaioIgnoto);
    }

    void Contorni() const {
        PennaPlt(pennaInchiostro);
        LineaStilePlt(spessoreContorno);
        t_.Soletta->Plotta();
        acciaio_.Plotta();
        if (t_.TipoSoletta == nervatureTrasversali)
            NervatureTrasversali();
    }

    /// Ribs across the beam are seen from their side; they count for nothing.
    void NervatureTrasversali() const {
        const double H = t_.Sezione->h;
        const double mezza = t_.beff / 2;
        PennaPlt(pennaGrigia);
        LineaStilePlt(spessoreFine, TipoLinea::Tratteggiata);
        LineaPlt(-mezza, H, mezza, H);
        for (const double x : {-mezza, mezza})
            LineaPlt(x, H, x, H + t_.ha);
        LineaStilePlt(spessoreFine);
    }

    /// As many bars as lie 150 mm apart, of the area that there is.
    void Barre() const {
        if (!(t_.As > 0 && t_.beff > 0))
            return;
        const double n = std::clamp(std::floor(t_.beff / passoBarre), 2.0, 100.0);
        const double r = std::sqrt(t_.As / n / std::numbers::pi);
        const double passo = t_.beff / n;
        PennaPlt(pennaInchiostro);
        LineaStilePlt(spessoreFine);
        for (int i = 0; i < static_cast<int>(n); ++i)
            CerchioPlt(-t_.beff / 2 + passo * (i + 0.5), t_.yArmatura, r);
    }

    void Misure() const {
        const auto [xMin, xMax, yMin, yMax] = riquadro_;
        const double H = t_.Sezione->h;
        const double x = xMin - quotaFuori * a_;
        const double mezza = t_.beff / 2;
        quote_.Orizzontale(-mezza, mezza, yMax, yMax + 3 * a_, TestoPiano(t_.beff));
        quote_.Verticale({-t_.Sezione->b / 2, 0}, {-mezza, std::min(H, H + t_.hc)}, x,
                         TestoPiano(Singolo(std::min(H, H + t_.hc))));
        quote_.Verticale({-mezza, std::min(H, H + t_.hc)}, {-mezza, std::max(H, H + t_.hc)}, x,
                         TestoPiano(Singolo(std::abs(t_.hc))));
    }

    void AsseNeutro() const {
        quote_.Asse(riquadro_[0] - oltreAsse * a_, t_.yNeutro, xTensioni_, t_.yNeutro, "a.n.");
    }

    /// Stresses to the right in tension, to the left in compression.
    void Disegna(const Blocco& b, double scala) const {
        const std::array<double, 4> x{xTensioni_, xTensioni_ + b.s1 * scala, xTensioni_ + b.s2 * scala,
                                      xTensioni_};
        const std::array<double, 4> y{b.y1, b.y1, b.y2, b.y2};
        PennaPlt(pennaInchiostro);
        LineaStilePlt(spessoreFine);
        AreaPlt(4, x, y, Fondo::Tenue);
        PolilineaPlt(4, x, y, true);
    }

    /// A value beside its end of a block, away from the axis.
    void Valore(double sigma, double y, double scala, const std::string& testo) const {
        const bool destra = sigma > 0;
        const double x = xTensioni_ + sigma * scala + (destra ? 0.5 : -0.5) * a_;
        PennaPlt(pennaInchiostro);
        TestoPlt(x, y - a_ / 2, a_, testo, destra ? Allinea::Sinistra : Allinea::Destra);
    }

    void Tensioni() const {
        PennaPlt(pennaGrigia);
        LineaStilePlt(spessoreFine);
        LineaPlt(xTensioni_, riquadro_[2], xTensioni_, riquadro_[3]);
        if (Plastica())
            TensioniPlastiche();
        else
            TensioniElastiche();
    }

    void Rettangolo(const std::shared_ptr<Poligono>& parte, double larghezza, double dove,
                    const std::string& testo) const {
        if (!parte)
            return;
        const auto [xMin, xMax, yMin, yMax] = parte->BoundingBox();
        Disegna({yMin, larghezza, yMax, larghezza}, mezzeTensioni * a_);
        Valore(dove, (yMin + yMax) / 2, mezzeTensioni * a_, testo);
    }

    /// Blocks of full strength; that of the concrete is drawn half as wide as the steel's, and its name
    /// stands across the axis, where steel at the same level leaves room.
    void TensioniPlastiche() const {
        constexpr double oltre = 0.01;
        const std::string acciaio = "fyd " + Cifre(t_.fyd());
        Rettangolo(t_.AcciaioCompresso, -1, -1, acciaio);
        Rettangolo(t_.AcciaioTeso, 1, 1, acciaio);
        Rettangolo(t_.ClsCompresso, -0.5, oltre, "fcd " + Cifre(AcciaioCls::fcd()));
    }

    /// The line of the stresses of the steel goes on through the slab with n times those of the concrete.
    void TensioniElastiche() const {
        const double H = t_.Sezione->h;
        const double n = CoeffOmogeneizzazione;
        const double massima =
            std::max({std::abs(t_.SigmaInf), std::abs(t_.SigmaSup), std::abs(n * t_.SigmaCls), 1e-9});
        const double scala = mezzeTensioni * a_ / massima;
        Disegna({0, t_.SigmaInf, H, t_.SigmaSup}, scala);
        Valore(t_.SigmaInf, 0, scala, Cifre(t_.SigmaInf));
        Valore(t_.SigmaSup, H, scala, Cifre(t_.SigmaSup));
        if (t_.ClsCompresso)
            TensioniCls(scala);
        if (t_.As > 0)
            Valore(-t_.SigmaArm * 1e-3, t_.yArmatura, scala, "barre " + Cifre(t_.SigmaArm));
    }

    void TensioniCls(double scala) const {
        const auto [xMin, xMax, yMin, yMax] = t_.ClsCompresso->BoundingBox();
        const auto sigma = [this](double y) { return (t_.yNeutro - y) * t_.Msd / t_.Jid; };
        Disegna({yMin, sigma(yMin), yMax, sigma(yMax)}, scala);
        const bool sopra = std::abs(yMax - t_.yNeutro) > std::abs(yMin - t_.yNeutro);
        const double y = sopra ? yMax : yMin;
        Valore(sigma(y), y, scala, Cifre(sigma(y) / CoeffOmogeneizzazione));
    }

    void Testi() const {
        double y = riquadro_[2] - (margineBasso - 1) * a_;
        PennaPlt(pennaInchiostro);
        TestoPlt(riquadro_[0], riquadro_[3] + 6 * a_, 1.3 * a_, Titolo());
        for (const std::string& riga : righe_) {
            TestoPlt(riquadro_[0], y, a_, riga);
            y -= interlinea * a_;
        }
    }

    [[nodiscard]] std::string Titolo() const {
        std::string titolo = t_.Sezione->Designation;
        if (!t_.TitoloFunz().empty())
            titolo = t_.TitoloFunz() + " - " + titolo;
        if (Dispositivo == dispositivoStampante && !tavola_.Scala().empty())
            titolo += "   Scala " + tavola_.Scala();
        return titolo;
    }

    const AcciaioCls& t_;
    const Poligono& acciaio_;
    std::array<double, 4> riquadro_;
    std::vector<std::string> righe_;
    std::array<Margini, 1> margini_;
    TavolaDisegno tavola_;
    double a_;
    Quote quote_;
    double xTensioni_;
};

} // namespace

void AcciaioCls::PlottaAcciaioCls(Superficie* oggetto, std::string_view /*maschera*/,
                                  std::string_view dispositivo) const {
    if (!Soletta || !Sezione || !Sezione->SezioneGenericaCorrente ||
        !Disegnabili(DisegnoMisto::Riquadro(*this, *ContornoAcciaio())))
        return;
    const std::string uscita(dispositivo); // it may be a view of the one in force
    DisegnoMisto(*this, oggetto, uscita).Traccia();
}

} // namespace sagomi
