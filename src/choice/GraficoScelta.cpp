#include "choice/GraficoScelta.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <map>
#include <unordered_set>
#include <utility>

#include "choice/TabellaScelta.h"
#include "drawing/Grafica.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr double uMassima = 1.5;            ///< utilisation at the upper end: what is far beyond says no more
constexpr double larghezzaCarattere = 0.62; ///< of a letter on the average [lines]
constexpr std::int16_t pennaRossa = 12;
constexpr double lato = 0.26; ///< half of a mark [lines]

/// Inks of the families; with the shapes of the marks they tell 30 of them apart.
constexpr std::array<std::int16_t, 5> penne{9, 2, 4, 5, 3};

/// Marks: their corners round the centre, y downwards.
const std::array<std::vector<PuntoQuadro>, 6>& Forme() {
    static const std::array<std::vector<PuntoQuadro>, 6> forme{
        {{{1, 0}, {.71, .71}, {0, 1}, {-.71, .71}, {-1, 0}, {-.71, -.71}, {0, -1}, {.71, -.71}},
         {{-.85, -.85}, {.85, -.85}, {.85, .85}, {-.85, .85}},
         {{0, -1.05}, {1.05, .85}, {-1.05, .85}},
         {{0, -1.2}, {1.2, 0}, {0, 1.2}, {-1.2, 0}},
         {{0, 1.05}, {1.05, -.85}, {-1.05, -.85}},
         {{-.35, -1.1},
          {.35, -1.1},
          {.35, -.35},
          {1.1, -.35},
          {1.1, .35},
          {.35, .35},
          {.35, 1.1},
          {-.35, 1.1},
          {-.35, .35},
          {-1.1, .35},
          {-1.1, -.35},
          {-.35, -.35}}}};
    return forme;
}

std::vector<PuntoQuadro> Marca(std::uint16_t famiglia, PuntoQuadro dove, double mezzo) {
    std::vector<PuntoQuadro> marca = Forme()[famiglia % Forme().size()];
    for (PuntoQuadro& p : marca)
        p = dove + p * mezzo;
    return marca;
}

std::int16_t PennaDi(std::uint16_t famiglia) { return penne[famiglia % penne.size()]; }

/// Around a step of 1, 2 or 5 times a power of ten that gives about so many of them.
double Passo(double ampiezza, double quanti) {
    const double grezzo = ampiezza / quanti;
    const double base = std::pow(10, std::floor(std::log10(grezzo)));
    for (const double f : {1.0, 2.0, 5.0})
        if (f * base >= grezzo)
            return f * base;
    return 10 * base;
}

/// The weight at the right end: four times that of the lightest that holds, as far as there are sections.
double PesoMassimo(const DatiGrafico& dati) {
    constexpr double volte = 4;
    double tutti = 0;
    for (const PuntoGrafico& p : dati.punti)
        tutti = std::max(tutti, p.g);
    const double limite = dati.fronte.empty() ? tutti : volte * dati.punti[dati.fronte.front()].g;
    const double peso = std::min(tutti, limite);
    if (!(peso > 0))
        return 100;
    const double passo = Passo(peso, 8);
    return std::ceil(peso / passo - 1e-9) * passo;
}

double LarghezzaLegenda(const DatiGrafico& dati, double riga) {
    std::size_t lunga = 0;
    for (const std::string& nome : dati.famiglie)
        lunga = std::max(lunga, nome.size());
    return lunga == 0 ? 0 : (static_cast<double>(lunga) * larghezzaCarattere + 1.6) * riga;
}

/// Columns that the legend takes beside the chart.
std::size_t ColonneLegenda(const DatiGrafico& dati, double altezza, double riga) {
    const auto righe = static_cast<std::size_t>(std::max(1.0, std::floor(altezza / (1.15 * riga))));
    return (dati.famiglie.size() + righe - 1) / righe;
}

class Grafico {
public:
    Grafico(const Quadro& quadro, const DatiGrafico& dati)
        : q_(quadro), d_(dati), riga_(quadro.Riga()), s_(ScalaDi(dati, quadro.Tutto(), quadro.Riga())) {}

    void Traccia() const {
        Assi();
        Fronte();
        Marche();
        Legenda();
        Lontani();
        Scelto();
        Avviso();
    }

private:
    void Assi() const {
        q_.Fine();
        Quadro::Linea({s_.campo.sinistra, s_.campo.alto}, {s_.campo.sinistra, s_.campo.Basso()});
        Quadro::Linea({s_.campo.sinistra, s_.campo.Basso()}, {s_.campo.Destra(), s_.campo.Basso()});
        for (double u = 0; u < s_.uMassimo + s_.uPasso / 2; u += s_.uPasso)
            Quota({s_.campo.sinistra, s_.In(0, u).y}, Formato("0", u * 100) + " %", true);
        for (double g = 0; g < s_.gMassimo + s_.gPasso / 1000; g += s_.gPasso)
            Quota({s_.In(g, 0).x, s_.campo.Basso()}, TestoPiano(std::round(g * 1000) / 1000), false);
        q_.Testo({s_.campo.sinistra + 0.4 * riga_, s_.campo.Basso() - 0.2 * riga_}, "g [kg/m]",
                 Allinea::Sinistra, Posa::Basso); // light sections are much utilised: nothing lies there
        PennaPlt(pennaRossa);
        LineaStilePlt(spessoreFine, TipoLinea::Tratteggiata);
        Quadro::Linea(s_.In(0, 1), s_.In(s_.gMassimo, 1));
    }

    /// A value beside an axis, with its tick.
    void Quota(PuntoQuadro dove, const std::string& testo, bool verticale) const {
        q_.Fine();
        const PuntoQuadro fuori = verticale ? PuntoQuadro{-0.25 * riga_, 0} : PuntoQuadro{0, 0.25 * riga_};
        Quadro::Linea(dove, dove + fuori);
        if (verticale)
            q_.Testo(dove + fuori * 1.6, testo, Allinea::Destra, Posa::Mezzo);
        else
            q_.Testo(dove + fuori * 1.4, testo, Allinea::Centro, Posa::Alto);
    }

    /// Marks that would lie on each other are drawn once.
    void Marche() const {
        const double cella = lato * riga_ * 0.5;
        std::unordered_set<std::uint64_t> occupate;
        const auto libera = [&](const PuntoGrafico& p) {
            const PuntoQuadro dove = s_.In(p.g, p.u);
            const auto x = static_cast<std::uint64_t>(std::llround(dove.x / cella)) & 0xFFFFF;
            const auto y = static_cast<std::uint64_t>(std::llround(dove.y / cella)) & 0xFFFFF;
            return occupate
                .insert((x << 40) | (y << 20) | (std::uint64_t(p.famiglia) << 1) |
                        std::uint64_t(p.verificato))
                .second;
        };
        for (const bool buoni : {false, true})
            for (const PuntoGrafico& p : d_.punti)
                if (p.verificato == buoni && s_.Dentro(p) && libera(p))
                    Segna(p, lato * riga_);
        for (const std::uint32_t i : d_.leggeri)
            if (s_.Dentro(d_.punti[i]))
                Segna(d_.punti[i], 1.5 * lato * riga_);
    }

    /// A section that holds is filled with the ink of its family, one that does not is an outline.
    void Segna(const PuntoGrafico& p, double mezzo) const {
        const std::vector<PuntoQuadro> marca = Marca(p.famiglia, s_.In(p.g, p.u), mezzo);
        if (p.verificato) {
            PennaPlt(PennaDi(p.famiglia));
            LineaStilePlt(spessoreFine, TipoLinea::Continua, Estremi::Quadri);
            Quadro::Area(marca, Fondo::Pieno);
        } else {
            q_.Fine();
            Quadro::Spezzata(marca, true);
        }
    }

    void Fronte() const {
        std::vector<PuntoQuadro> linea;
        for (const std::uint32_t i : d_.fronte)
            if (s_.Dentro(d_.punti[i]))
                linea.push_back(s_.In(d_.punti[i].g, d_.punti[i].u));
        if (linea.size() < 2)
            return;
        q_.Contorno();
        Quadro::Spezzata(linea);
    }

    void Legenda() const {
        const std::size_t colonne = ColonneLegenda(d_, q_.Tutto().altezza, riga_);
        if (colonne == 0)
            return;
        const std::size_t righe = (d_.famiglie.size() + colonne - 1) / colonne;
        const double larga = LarghezzaLegenda(d_, riga_);
        for (std::size_t i = 0; i < d_.famiglie.size(); ++i) {
            const std::size_t colonna = i / righe;
            const PuntoQuadro dove{s_.campo.Destra() + (1.2 + lato) * riga_ +
                                       larga * static_cast<double>(colonna),
                                   q_.Tutto().alto + (0.7 + 1.15 * static_cast<double>(i % righe)) * riga_};
            const auto famiglia = static_cast<std::uint16_t>(i);
            PennaPlt(PennaDi(famiglia));
            LineaStilePlt(spessoreFine);
            Quadro::Area(Marca(famiglia, dove, 1.2 * lato * riga_), Fondo::Pieno);
            q_.Testo(dove + PuntoQuadro{0.7 * riga_, 0}, d_.famiglie[i], Allinea::Sinistra, Posa::Mezzo);
        }
    }

    /// How many marks lie outside of the axes.
    void Lontani() const {
        const auto fuori =
            std::ranges::count_if(d_.punti, [&](const PuntoGrafico& p) { return !s_.Dentro(p); });
        if (fuori == 0)
            return;
        const std::string testo = Formato("#,##0", static_cast<double>(fuori)) +
                                  (fuori == 1 ? " sagomo fuori dal grafico" : " sagomi fuori dal grafico");
        double destra = s_.campo.Destra();
        if (d_.scelto && !s_.Dentro(d_.punti[*d_.scelto])) { // its ring may stand there
            const PuntoQuadro anello = Anello(d_.punti[*d_.scelto]);
            if (anello.y - Raggio() < s_.campo.alto + riga_ &&
                anello.x + Raggio() > destra - q_.LarghezzaTesto(testo))
                destra = anello.x - Raggio() - 0.3 * riga_;
        }
        q_.Testo({destra, s_.campo.alto}, testo, Allinea::Destra, Posa::Alto);
    }

    [[nodiscard]] double Raggio() const { return 2.4 * lato * riga_; }
    /// Of the arrow at the ring of a mark that lies outside.
    [[nodiscard]] double Freccia() const { return 0.6 * riga_; }

    /// Where the ring of a mark stands: round it, or, of one that lies outside, at the edge.
    [[nodiscard]] PuntoQuadro Anello(const PuntoGrafico& p) const {
        const double bordo = Raggio() + Freccia();
        const PuntoQuadro vero = s_.In(p.g, p.u);
        return {p.g > s_.gMassimo ? s_.campo.Destra() - bordo : vero.x,
                p.u > s_.uMassimo ? s_.campo.alto + bordo : vero.y};
    }

    /// Towards a mark that lies outside.
    void FrecciaFuori(const PuntoGrafico& p, PuntoQuadro anello) const {
        PuntoQuadro verso{p.g > s_.gMassimo ? 1.0 : 0.0, p.u > s_.uMassimo ? -1.0 : 0.0};
        verso = verso * (1 / std::hypot(verso.x, verso.y));
        Quadro::Punta(anello + verso * (Raggio() + Freccia()), verso, Freccia(), Freccia() / 2);
    }

    void Scelto() const {
        if (!d_.scelto)
            return;
        const PuntoGrafico& p = d_.punti[*d_.scelto];
        const PuntoQuadro dove = Anello(p);
        const double raggio = Raggio();
        q_.Contorno();
        Quadro::Cerchio(dove, raggio);
        if (!s_.Dentro(p))
            FrecciaFuori(p, dove);
        // Below and left of a mark of the front there is nothing: the name hides no other mark.
        const double largo = q_.LarghezzaTesto(d_.nomeScelto);
        const double sotto = dove.y + raggio + 0.6 * riga_;
        const double y = sotto + 0.5 * riga_ < s_.campo.Basso() ? sotto : dove.y - raggio - 0.6 * riga_;
        const double destra = std::max(dove.x, s_.campo.sinistra + largo + 0.3 * riga_);
        const double aria = 0.1 * riga_;
        const std::array<PuntoQuadro, 4> dietro{{{destra - largo - aria, y - 0.5 * riga_},
                                                 {destra + aria, y - 0.5 * riga_},
                                                 {destra + aria, y + 0.5 * riga_},
                                                 {destra - largo - aria, y + 0.5 * riga_}}};
        if (SulBersaglio())
            Quadro::Area(dietro, Fondo::Sfondo);
        q_.Testo({destra, y}, d_.nomeScelto, Allinea::Destra, Posa::Mezzo);
    }

    void Avviso() const {
        q_.Fine();
        q_.Testo({s_.campo.sinistra + s_.campo.larghezza / 2, s_.campo.alto + s_.campo.altezza / 2},
                 d_.avviso, Allinea::Centro, Posa::Mezzo);
    }

    const Quadro& q_;
    const DatiGrafico& d_;
    double riga_;
    ScalaGrafico s_;
};

} // namespace

// A stair of weights with falling utilisations; of equal ones the first stays.
std::vector<std::uint32_t> FronteLeggeri(std::span<const PuntoGrafico> punti) {
    std::map<double, std::uint32_t> scala; // by weight
    for (std::uint32_t i = 0; i < punti.size(); ++i) {
        const PuntoGrafico& p = punti[i];
        if (!p.verificato)
            continue;
        auto dopo = scala.upper_bound(p.g);
        if (dopo != scala.begin() && punti[std::prev(dopo)->second].u <= p.u)
            continue;
        while (dopo != scala.end() && punti[dopo->second].u >= p.u)
            dopo = scala.erase(dopo);
        scala.insert_or_assign(p.g, i);
    }
    std::vector<std::uint32_t> fronte;
    fronte.reserve(scala.size());
    for (const auto& [g, i] : scala)
        fronte.push_back(i);
    return fronte;
}

DatiGrafico DatiGraficoDi(std::span<const std::uint32_t> posti, std::span<const RigaScelta> righe,
                          std::span<const SagomoInGara> sagomi) {
    DatiGrafico dati;
    dati.punti.reserve(posti.size());
    std::vector<std::pair<const RigaScelta*, std::uint32_t>> migliori; // by family
    std::string_view ultima;
    std::uint16_t famiglia = 0;
    std::vector<std::uint32_t> ordinati(posti.begin(), posti.end());
    std::ranges::sort(ordinati); // families in the order of the catalogue, however the table is sorted
    for (const std::uint32_t p : ordinati) {
        const RigaScelta& riga = righe[p];
        if (!std::isfinite(riga.massimo))
            continue;
        if (dati.famiglie.empty() || ultima != sagomi[p].famiglia) {
            ultima = sagomi[p].famiglia;
            const auto nota = std::ranges::find(dati.famiglie, ultima);
            famiglia = static_cast<std::uint16_t>(nota - dati.famiglie.begin());
            if (nota == dati.famiglie.end()) {
                dati.famiglie.emplace_back(ultima);
                migliori.emplace_back(nullptr, 0);
            }
        }
        const auto questo = static_cast<std::uint32_t>(dati.punti.size());
        dati.punti.push_back({riga.g, riga.massimo, famiglia, riga.verificato, p});
        if (riga.verificato && (migliori[famiglia].first == nullptr || riga.g < migliori[famiglia].first->g))
            migliori[famiglia] = {&riga, questo};
    }
    for (const auto& [riga, punto] : migliori)
        if (riga != nullptr)
            dati.leggeri.push_back(punto);
    dati.fronte = FronteLeggeri(dati.punti);
    if (std::ranges::any_of(posti, [&](std::uint32_t p) { return righe[p].SenzaVerdetto(); }))
        dati.avviso = "Scrivere NSd, My o Mz: qui compare l'utilizzo di ogni sagomo";
    return dati;
}

ScalaGrafico ScalaDi(const DatiGrafico& dati, const CampoQuadro& tutto, double riga) {
    constexpr double quanteG = 8;
    ScalaGrafico s;
    const double legenda =
        LarghezzaLegenda(dati, riga) * static_cast<double>(ColonneLegenda(dati, tutto.altezza, riga));
    s.campo = tutto.Dentro(3.4 * riga, 0.7 * riga, (legenda > 0 ? 1 : 1.6) * riga + legenda, 1.6 * riga);
    s.gMassimo = PesoMassimo(dati);
    s.gPasso = Passo(s.gMassimo, std::clamp(s.campo.larghezza / (4 * riga), 2.0, quanteG));
    s.uMassimo = uMassima;
    s.uPasso = s.campo.altezza > 9 * riga ? 0.25 : 0.5;
    return s;
}

std::optional<std::uint32_t> PuntoVicino(const DatiGrafico& dati, const ScalaGrafico& scala, PuntoQuadro dove,
                                         double riga) {
    double vicino = (lato + 0.5) * riga;
    std::optional<std::uint32_t> trovato;
    for (std::uint32_t i = 0; i < dati.punti.size(); ++i) {
        if (!scala.Dentro(dati.punti[i]))
            continue;
        const PuntoQuadro p = scala.In(dati.punti[i].g, dati.punti[i].u);
        // Of marks on each other the one that holds is meant.
        const double distanza =
            std::hypot(p.x - dove.x, p.y - dove.y) + (dati.punti[i].verificato ? 0 : 1e-6 * riga);
        if (distanza < vicino) {
            vicino = distanza;
            trovato = i;
        }
    }
    return trovato;
}

Disegno DisegnoGrafico(std::shared_ptr<const DatiGrafico> dati) {
    Disegno disegno{"Scelta del sagomo", {}, {640, 300}, {240, 110}};
    disegno.PlottaInOggetto = [dati = std::move(dati), misura = disegno.misura](Superficie* oggetto,
                                                                                std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        Grafico(quadro, *dati).Traccia();
    };
    return disegno;
}

} // namespace sagomi
