#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "drawing/Grafica.h"
#include "drawing/Quote.h"
#include "drawing/TavolaDisegno.h"
#include "frame/Numeri.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

// Layout, in heights of the text.
constexpr double interlinea = 1.7;
constexpr double ingrandimentoTitolo = 1.3; ///< of the first line
constexpr double quotaEsterna = 3;          ///< of a dimension line from the piece
constexpr double quotaOltreAsse = 5;        ///< the same where the name of an axis stands between
constexpr double quotaSpessore = 2.2;       ///< of the thickness of a flange
constexpr double colonnaTesti = 9;          ///< of the lines of data beside the piece
constexpr double sporgenzaAsse = 1.5;

constexpr double angoloTratteggio = 45;
constexpr double lineePerDimensione = 50; ///< hatching lines in the longer side
constexpr double mezzoFilo = 0.011;       ///< mm; the thread of web that holds an effective outline together

enum Disposizione : std::size_t { testiAccanto = 0, testiSopra = 1 };

struct Dato {
    std::string nome;
    Singolo valore;
};

/// Sections built of plates: their r is the leg of the fillet, not the radius of a rolled root.
bool DiLamiere(const SezioneDoppioT& s) {
    static constexpr std::array<std::string_view, 4> famiglie{"HSH", "ISE", "HSA", "HSL"};
    return s.Saldata || std::any_of(famiglie.begin(), famiglie.end(),
                                    [&](std::string_view f) { return s.Designation.starts_with(f); });
}

Singolo Raccordo(const SezioneDoppioT& s) { return DiLamiere(s) ? s.r : s.r1; }

std::vector<Dato> Dati(const SezioneDoppioT& s) {
    if (s.SaldataAsimm)
        return {{"h", s.h},    {"b1", s.b},        {"b2", s.bAlaInf}, {"tw", s.tw},
                {"tf1", s.tf}, {"tf2", s.tAlaInf}, {"r", Raccordo(s)}};
    return {{"h", s.h}, {"b", s.b}, {"tw", s.tw}, {"tf", s.tf}, {"r", Raccordo(s)}};
}

std::string Riga(const Dato& dato) { return dato.nome + " = " + TestoPiano(dato.valore); }

struct Efficace {
    const SezioneGenerica* sezione = nullptr;
    std::string_view nome;
};

/// The effective outline that the detail screen of the classes has asked for, if it is there. One of an
/// earlier run is not: the section may have left class 4 since.
Efficace SezioneEfficace(const SezioneDoppioT& s, std::string_view maschera) {
    if (maschera != "FrmClasseDoppioTU")
        return {};
    switch (s.SezioneEfficaceDaPlottare) {
    case 0:
        return s.ClasseCompressione == 4 ? Efficace{s.SezioneComp4.get(), "Aeff Comp."} : Efficace{};
    case 1:
        return s.ClasseFlessioneY == 4 ? Efficace{s.SezioneWy4.get(), "Weff,y"} : Efficace{};
    case 2:
        return s.ClasseFlessioneZ == 4 ? Efficace{s.SezioneWz4.get(), "Weff,z"} : Efficace{};
    default:
        return {};
    }
}

struct Contorno {
    std::vector<double> x, y;

    [[nodiscard]] std::int16_t Numero() const { return static_cast<std::int16_t>(x.size()); }
};

/// A vertex of the thread that holds an effective outline together.
bool NelFilo(const Poligono& p, int i) { return std::abs(p.xi(i)) < mezzoFilo; }

/// The parts that an effective outline shows: where a strip of the web is removed, the thread is left out and
/// two parts remain, each closed.
std::vector<Contorno> PartiVisibili(const Poligono& p) {
    const int n = p.nVertici();
    std::vector<int> fili; // sides along the thread
    for (int i = 1; i <= n; ++i)
        if (NelFilo(p, i) && NelFilo(p, i % n + 1) && p.yi(i) != p.yi(i % n + 1))
            fili.push_back(i);
    const bool diviso = fili.size() == 2;
    std::vector<Contorno> parti(diviso ? 2 : 1);
    for (int i = 1; i <= n; ++i) {
        if (diviso && NelFilo(p, i))
            continue;
        Contorno& parte = parti[diviso && i > fili[0] && i <= fili[1] ? 1 : 0];
        parte.x.push_back(p.xi(i));
        parte.y.push_back(p.yi(i));
    }
    return parti;
}

/// One drawing of one section.
class DisegnoDoppioT {
public:
    DisegnoDoppioT(const SezioneDoppioT& s, Superficie* oggetto, std::string_view dispositivo,
                   const Efficace& efficace)
        : s_(s), efficace_(efficace), contorno_(*s.SezioneGenericaCorrente),
          riquadro_(contorno_.Poligono->BoundingBox()), righe_(Righe()),
          margini_(Disposizioni(oggetto, dispositivo)), tavola_(oggetto, dispositivo, riquadro_, margini_),
          a_(tavola_.AltezzaTesto()), quote_(a_) {}

    void Traccia() const {
        Sagoma();
        Assi();
        Quotatura();
        Testi();
    }

private:
    /// What stands under the name.
    [[nodiscard]] std::vector<std::string> Righe() const {
        std::vector<std::string> righe;
        if (efficace_.sezione != nullptr)
            righe.emplace_back(efficace_.nome);
        for (const Dato& dato : Dati(s_))
            righe.push_back(Riga(dato));
        return righe;
    }

    [[nodiscard]] std::array<Margini, 2> Disposizioni(Superficie* oggetto,
                                                      std::string_view dispositivo) const {
        const StatoUscita prima;
        Dispositivo = dispositivo;
        OggettoGrafico = oggetto;
        double larghezza = LarghezzaTestoPlt(ingrandimentoTitolo, s_.Designation);
        for (const std::string& riga : righe_)
            larghezza = std::max(larghezza, LarghezzaTestoPlt(1, riga));
        const double altezza = (static_cast<double>(righe_.size()) + 1 + ingrandimentoTitolo) * interlinea;
        const double sopra = s_.SaldataAsimm ? quotaOltreAsse + 2 : quotaEsterna + 0.5;
        const Margini accanto{8, sopra, colonnaTesti + larghezza + 1, 5.5};
        return {accanto, Margini{8, sopra + altezza + 1, colonnaTesti, 5.5}};
    }

    [[nodiscard]] const SezioneGenerica& Disegnata() const {
        return efficace_.sezione != nullptr ? *efficace_.sezione : contorno_;
    }

    void Sagoma() const {
        const std::vector<Contorno> parti = PartiVisibili(*Disegnata().Poligono);
        const double passo =
            std::max(riquadro_[1] - riquadro_[0], riquadro_[3] - riquadro_[2]) / lineePerDimensione;
        LineaStilePlt(spessoreFine);
        for (const Contorno& parte : parti)
            TratteggioPlt(parte.Numero(), parte.x, parte.y, angoloTratteggio, -passo, pennaGrigia);
        if (efficace_.sezione != nullptr) {
            PennaPlt(pennaGrigia);
            LineaStilePlt(spessoreFine, TipoLinea::Tratteggiata);
            contorno_.Poligono->Plotta();
        }
        PennaPlt(pennaInchiostro);
        LineaStilePlt(spessoreContorno);
        for (const Contorno& parte : parti)
            PolilineaPlt(parte.Numero(), parte.x, parte.y, true);
    }

    void Assi() const {
        const auto [xMin, xMax, yMin, yMax] = riquadro_;
        const double xG = Disegnata().xG;
        const double yG = Disegnata().yG;
        const double oltre = sporgenzaAsse * a_;
        quote_.Asse(xMin - oltre, yG, xMax + oltre, yG, "y");
        quote_.Asse(xG, yMax + oltre, xG, yMin - oltre, "z");
        quote_.Baricentro(xG, yG);
    }

    void Quotatura() const {
        const auto [xMin, xMax, yMin, yMax] = riquadro_;
        const double bInf = s_.SaldataAsimm ? s_.bAlaInf : s_.b;
        quote_.Verticale({bInf / 2, yMin}, {s_.b / 2, yMax}, xMax + quotaEsterna * a_, TestoPiano(s_.h));
        quote_.Orizzontale(-bInf / 2, bInf / 2, yMin, yMin - quotaEsterna * a_, TestoPiano(Singolo(bInf)));
        const double xSpessore = xMin - quotaSpessore * a_;
        // The thickness of a tapered flange counts at a quarter of its width.
        const double xTf = !DiLamiere(s_) && s_.r2 > 0 ? -s_.b / 4 : -s_.b / 2;
        quote_.SpessoreVerticale({xTf, yMax - s_.tf}, {-s_.b / 2, yMax}, xSpessore, TestoPiano(s_.tf));
        quote_.SpessoreOrizzontale(-s_.tw / 2, s_.tw / 2, 0.3 * s_.h, TestoPiano(s_.tw));
        if (s_.SaldataAsimm) {
            quote_.Orizzontale(-s_.b / 2, s_.b / 2, yMax, yMax + quotaOltreAsse * a_, TestoPiano(s_.b));
            quote_.SpessoreVerticale({-bInf / 2, yMin}, {-bInf / 2, yMin + s_.tAlaInf}, xSpessore,
                                     TestoPiano(s_.tAlaInf));
        }
        if (Raccordo(s_) > 0)
            QuotaRaccordo();
    }

    /// A leader into the root at the upper left.
    void QuotaRaccordo() const {
        const double dentro = 0.3 * Raccordo(s_);
        const double x = -s_.tw / 2 - dentro;
        const double y = s_.h - s_.tf - dentro;
        quote_.Richiamo(x, y, x - 1.5 * a_, y - 2 * a_, Riga({"r", Raccordo(s_)}));
    }

    void Testi() const {
        const Margini& m = margini_[tavola_.Disposizione()];
        const bool accanto = tavola_.Disposizione() == testiAccanto;
        const double x = accanto ? riquadro_[1] + colonnaTesti * a_ : riquadro_[0] - m.sx * a_;
        double y = accanto ? riquadro_[3] : riquadro_[3] + (m.su - ingrandimentoTitolo - 1) * a_;
        PennaPlt(pennaInchiostro);
        TestoPlt(x, y, ingrandimentoTitolo * a_, s_.Designation);
        y -= ingrandimentoTitolo * interlinea * a_;
        for (const std::string& riga : righe_) {
            TestoPlt(x, y, a_, riga);
            y -= interlinea * a_;
        }
        if (Dispositivo == dispositivoStampante && !tavola_.Scala().empty())
            TestoPlt(x, y, a_, "Scala " + tavola_.Scala());
    }

    const SezioneDoppioT& s_;
    Efficace efficace_;
    const SezioneGenerica& contorno_;
    std::array<double, 4> riquadro_;
    std::vector<std::string> righe_;
    std::array<Margini, 2> margini_;
    TavolaDisegno tavola_;
    double a_;
    Quote quote_;
};

} // namespace

void SezioneDoppioT::PlottaSezione(Superficie* oggetto, std::string_view maschera,
                                   std::string_view dispositivo) const {
    if (!SezioneGenericaCorrente || !SezioneGenericaCorrente->Poligono ||
        SezioneGenericaCorrente->Poligono->nVertici() < 3)
        return;
    const std::string uscita(dispositivo); // it may be a view of the one in force
    DisegnoDoppioT(*this, oggetto, uscita, SezioneEfficace(*this, maschera)).Traccia();
}

} // namespace sagomi
