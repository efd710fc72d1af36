#include "sections/DisegnoQuotato.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "drawing/Grafica.h"
#include "drawing/Quote.h"
#include "drawing/TavolaDisegno.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

// Layout, in heights of the text.
constexpr double interlinea = 1.7;
constexpr double ingrandimentoTitolo = 1.3; ///< of the first line
constexpr double colonnaTesti = 9;          ///< of the lines of data beside the piece
constexpr double sporgenzaAsse = 1.5;

// The cut is hatched at 45 degrees, as cuts on technical drawings are.
constexpr double angoloTratteggio = 45;
constexpr double lineePerDimensione = 50; ///< hatching lines in the longer side
constexpr double mezzoFilo = 0.011;       ///< mm; the thread of web that holds an effective outline together

enum Disposizione : std::size_t { testiAccanto = 0, testiSopra = 1 };

struct Contorno {
    std::vector<double> x, y;

    [[nodiscard]] std::int16_t Numero() const { return static_cast<std::int16_t>(x.size()); }
};

/// A vertex of the thread that holds an effective outline together.
bool NelFilo(const Poligono& p, int i, double filo) { return std::abs(p.xi(i) - filo) < mezzoFilo; }

/// The parts that an effective outline shows: where a strip of the web is removed, the thread is left out and
/// two parts remain, each closed. A thread in the middle of a web goes with its ends; one along the back of a
/// web ends at corners, which stay.
/// @param e  its thread and its place
std::vector<Contorno> PartiVisibili(const Poligono& p, const ContornoEfficace& e) {
    const int n = p.nVertici();
    std::vector<int> fili; // sides along the thread
    for (int i = 1; i <= n; ++i)
        if (NelFilo(p, i, e.filo) && NelFilo(p, i % n + 1, e.filo) && p.yi(i) != p.yi(i % n + 1))
            fili.push_back(i);
    const bool diviso = fili.size() == 2;
    const bool inMezzo = diviso && p.yi(fili[0]) == p.yi(fili[1] % n + 1);
    std::vector<Contorno> parti(diviso ? 2 : 1);
    for (int i = 1; i <= n; ++i) {
        if (inMezzo && NelFilo(p, i, e.filo))
            continue;
        Contorno& parte = parti[diviso && i > fili[0] && i <= fili[1] ? 1 : 0];
        parte.x.push_back(p.xi(i) + e.dx);
        parte.y.push_back(p.yi(i));
    }
    return parti;
}

double Specchiata(double v, const Gemello& g) { return -(v + g.distanza); }

Contorno Specchiato(Contorno c, const Gemello& g) {
    for (double& v : g.sottoSopra ? c.y : c.x)
        v = Specchiata(v, g);
    return c;
}

/// The box of what is drawn.
PezzoQuotato::Riquadro RiquadroDi(const PezzoQuotato& pezzo) {
    auto riquadro = pezzo.contorno->Poligono->BoundingBox();
    if (!pezzo.gemello)
        return riquadro;
    double& minimo = riquadro[pezzo.gemello->sottoSopra ? 2 : 0];
    double& massimo = riquadro[pezzo.gemello->sottoSopra ? 3 : 1];
    const std::array<double, 4> estremi{minimo, massimo, Specchiata(minimo, *pezzo.gemello),
                                        Specchiata(massimo, *pezzo.gemello)};
    minimo = *std::min_element(estremi.begin(), estremi.end());
    massimo = *std::max_element(estremi.begin(), estremi.end());
    return riquadro;
}

/// One drawing of one section.
class DisegnoQuotato {
public:
    DisegnoQuotato(const PezzoQuotato& pezzo, Superficie* oggetto, std::string_view dispositivo)
        : pezzo_(pezzo), riquadro_(RiquadroDi(pezzo)), righe_(Righe()),
          margini_(Disposizioni(oggetto, dispositivo)), tavola_(oggetto, dispositivo, riquadro_, margini_),
          a_(tavola_.AltezzaTesto()), quote_(a_) {}

    void Traccia() const {
        Sagoma();
        Assi();
        if (pezzo_.quotatura)
            pezzo_.quotatura(quote_, riquadro_);
        Testi();
    }

private:
    /// What stands under the name.
    [[nodiscard]] std::vector<std::string> Righe() const {
        std::vector<std::string> righe;
        if (pezzo_.efficace.sezione != nullptr)
            righe.emplace_back(pezzo_.efficace.nome);
        righe.insert(righe.end(), pezzo_.righe.begin(), pezzo_.righe.end());
        return righe;
    }

    [[nodiscard]] std::array<Margini, 2> Disposizioni(Superficie* oggetto,
                                                      std::string_view dispositivo) const {
        const StatoUscita prima;
        Dispositivo = dispositivo;
        OggettoGrafico = oggetto;
        double larghezza = LarghezzaTestoPlt(ingrandimentoTitolo, pezzo_.nome);
        for (const std::string& riga : righe_)
            larghezza = std::max(larghezza, LarghezzaTestoPlt(1, riga));
        const double altezza = (static_cast<double>(righe_.size()) + 1 + ingrandimentoTitolo) * interlinea;
        const double sopra = pezzo_.sopra;
        const Margini accanto{8, sopra, colonnaTesti + larghezza + 1, 5.5};
        return {accanto, Margini{8, sopra + altezza + 1, colonnaTesti, 5.5}};
    }

    [[nodiscard]] const SezioneGenerica& Disegnata() const {
        return pezzo_.efficace.sezione != nullptr ? *pezzo_.efficace.sezione : *pezzo_.contorno;
    }

    [[nodiscard]] std::vector<Contorno> Parti() const {
        std::vector<Contorno> parti = PartiVisibili(*Disegnata().Poligono, pezzo_.efficace);
        if (!pezzo_.gemello)
            return parti;
        for (std::size_t i = 0, n = parti.size(); i < n; ++i)
            parti.push_back(Specchiato(parti[i], *pezzo_.gemello));
        return parti;
    }

    void ContornoIntero() const {
        PennaPlt(pennaGrigia);
        LineaStilePlt(spessoreFine, TipoLinea::Tratteggiata);
        pezzo_.contorno->Poligono->Plotta();
        if (!pezzo_.gemello)
            return;
        Poligono altro = pezzo_.contorno->Poligono->Copia();
        altro.SpecchiaXY(pezzo_.gemello->distanza, pezzo_.gemello->sottoSopra);
        altro.Plotta();
    }

    void Sagoma() const {
        const std::vector<Contorno> parti = Parti();
        const double passo =
            std::max(riquadro_[1] - riquadro_[0], riquadro_[3] - riquadro_[2]) / lineePerDimensione;
        LineaStilePlt(spessoreFine);
        for (const Contorno& parte : parti)
            TratteggioPlt(parte.Numero(), parte.x, parte.y, angoloTratteggio, -passo, pennaGrigia);
        if (pezzo_.efficace.sezione != nullptr)
            ContornoIntero();
        PennaPlt(pennaInchiostro);
        LineaStilePlt(spessoreContorno);
        for (const Contorno& parte : parti)
            PolilineaPlt(parte.Numero(), parte.x, parte.y, true);
    }

    void Assi() const {
        const auto [xMin, xMax, yMin, yMax] = riquadro_;
        double xG = Disegnata().xG + pezzo_.efficace.dx;
        double yG = Disegnata().yG;
        if (pezzo_.gemello)
            (pezzo_.gemello->sottoSopra ? yG : xG) = -pezzo_.gemello->distanza / 2;
        const double oltre = sporgenzaAsse * a_;
        quote_.Asse(xMin - oltre, yG, xMax + oltre, yG, "y");
        quote_.Asse(xG, yMax + oltre, xG, yMin - oltre, "z");
        quote_.Baricentro(xG, yG);
    }

    void Testi() const {
        const Margini& m = margini_[tavola_.Disposizione()];
        const bool accanto = tavola_.Disposizione() == testiAccanto;
        const double x = accanto ? riquadro_[1] + colonnaTesti * a_ : riquadro_[0] - m.sx * a_;
        double y = accanto ? riquadro_[3] : riquadro_[3] + (m.su - ingrandimentoTitolo - 1) * a_;
        PennaPlt(pennaInchiostro);
        TestoPlt(x, y, ingrandimentoTitolo * a_, pezzo_.nome);
        y -= ingrandimentoTitolo * interlinea * a_;
        for (const std::string& riga : righe_) {
            TestoPlt(x, y, a_, riga);
            y -= interlinea * a_;
        }
        if (Dispositivo == dispositivoStampante && !tavola_.Scala().empty())
            TestoPlt(x, y, a_, "Scala " + tavola_.Scala());
    }

    const PezzoQuotato& pezzo_;
    PezzoQuotato::Riquadro riquadro_;
    std::vector<std::string> righe_;
    std::array<Margini, 2> margini_;
    TavolaDisegno tavola_;
    double a_;
    Quote quote_;
};

} // namespace

std::string RigaDato(std::string_view nome, Singolo valore) {
    return std::string(nome) + " = " + TestoPiano(valore);
}

void DisegnaQuotato(const PezzoQuotato& pezzo, Superficie* oggetto, std::string_view dispositivo) {
    if (pezzo.contorno == nullptr || !pezzo.contorno->Poligono || pezzo.contorno->Poligono->nVertici() < 3 ||
        !Disegnabili(pezzo.contorno->Poligono->BoundingBox()))
        return;
    const std::string uscita(dispositivo); // it may be a view of the one in force
    DisegnoQuotato(pezzo, oggetto, uscita).Traccia();
}

} // namespace sagomi
