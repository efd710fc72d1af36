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

// The cut is hatched at 45 degrees, ISO 128-3.
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
/// two parts remain, each closed.
/// @param filo  abscissa of the thread [mm]
std::vector<Contorno> PartiVisibili(const Poligono& p, double filo) {
    const int n = p.nVertici();
    std::vector<int> fili; // sides along the thread
    for (int i = 1; i <= n; ++i)
        if (NelFilo(p, i, filo) && NelFilo(p, i % n + 1, filo) && p.yi(i) != p.yi(i % n + 1))
            fili.push_back(i);
    const bool diviso = fili.size() == 2;
    std::vector<Contorno> parti(diviso ? 2 : 1);
    for (int i = 1; i <= n; ++i) {
        if (diviso && NelFilo(p, i, filo))
            continue;
        Contorno& parte = parti[diviso && i > fili[0] && i <= fili[1] ? 1 : 0];
        parte.x.push_back(p.xi(i));
        parte.y.push_back(p.yi(i));
    }
    return parti;
}

/// One drawing of one section.
class DisegnoQuotato {
public:
    DisegnoQuotato(const PezzoQuotato& pezzo, Superficie* oggetto, std::string_view dispositivo)
        : pezzo_(pezzo), riquadro_(pezzo.contorno->Poligono->BoundingBox()), righe_(Righe()),
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

    void Sagoma() const {
        const std::vector<Contorno> parti = PartiVisibili(*Disegnata().Poligono, pezzo_.efficace.filo);
        const double passo =
            std::max(riquadro_[1] - riquadro_[0], riquadro_[3] - riquadro_[2]) / lineePerDimensione;
        LineaStilePlt(spessoreFine);
        for (const Contorno& parte : parti)
            TratteggioPlt(parte.Numero(), parte.x, parte.y, angoloTratteggio, -passo, pennaGrigia);
        if (pezzo_.efficace.sezione != nullptr) {
            PennaPlt(pennaGrigia);
            LineaStilePlt(spessoreFine, TipoLinea::Tratteggiata);
            pezzo_.contorno->Poligono->Plotta();
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
