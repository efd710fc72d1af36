#include "joints/DiagrammaRigidezza.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "drawing/Quadro.h"
#include "frame/Numeri.h"
#include "joints/Giunto.h"
#include "joints/TracciaVista.h"

namespace sagomi {

namespace {

using Punto = PuntoQuadro;

constexpr std::string_view nomeAsse = "M [kNm]";

/// What the diagram shows: moments [kNm], stiffness [kNm/rad].
struct CurvaGiunto {
    bool calcolata = false, conLuce = false;
    double Mj = 0, Mel = 0, Msd = 0;
    double SjRd = 0, Sel = 0, SSd = 0;
    struct Limite {
        double S;
        std::string_view nome;
    };
    std::array<Limite, 3> limiti{};
    std::vector<std::pair<double, double>> salita; ///< rotation and moment, from 0 to Mj

    explicit CurvaGiunto(const Giunto& g) {
        Mj = g.MplRdGIUNTO;
        Mel = g.M_elastico;
        SjRd = g.Sj_MjRd;
        Sel = g.Sj_Mela;
        SSd = g.Sj_MjSd;
        Msd = g.Trave ? std::abs(double(g.Trave->Mysd)) : 0;
        conLuce = g.Trave && g.Trave->lunghezza() > 0;
        if (conLuce)
            limiti = {{{g.LimiteRigido1, "rigido (non controv.)"},
                       {g.LimiteRigido2, "rigido (controv.)"},
                       {g.LimiteCerniera, "cerniera"}}};
        const std::array misure{Mj, Mel, Msd, SjRd, Sel, SSd};
        calcolata = g.Acquisito && Disegnabili(misure) && Mj > 0 && SjRd > 0 && Sel > 0;
        if (calcolata)
            Salita(g);
    }

    /// The secant stiffness at moments between the elastic one and Mj. A joint that was read from a file does
    /// not have what it takes: the values that it has are joined by straight lines.
    void Salita(const sagomi::Giunto& g) {
        constexpr int passi = 12;
        constexpr double uguali = 1e-6;
        sagomi::Giunto copia = g;
        const auto secante = [&copia, this](double M) {
            double interna = 0;
            double esterna = 0;
            double S = 0;
            copia.Rigidezza_Calcola(Mj / M, interna, esterna, S);
            return S;
        };
        salita = {{0, 0}, {Mel / Sel, Mel}};
        const bool intero = copia.zInt() > 0 && std::abs(secante(Mj) - SjRd) < uguali * SjRd;
        for (int i = 1; intero && i < passi; ++i) {
            const double M = Mel + (Mj - Mel) * i / passi;
            salita.emplace_back(M / secante(M), M);
        }
        if (!intero && Msd > Mel && Msd < Mj && SSd > 0)
            salita.emplace_back(Msd / SSd, Msd);
        salita.emplace_back(Mj / SjRd, Mj);
    }
};

/// The next step of a scale at or above a value: 1, 2, 5 and their tenfolds.
double PassoTondo(double valore) {
    const double decade = std::pow(10, std::floor(std::log10(valore)));
    for (const double f : {1.0, 2.0, 5.0})
        if (valore <= f * decade * (1 + 1e-9))
            return f * decade;
    return 10 * decade;
}

class Tavola {
public:
    Tavola(const Quadro& quadro, const CurvaGiunto& c) : q_(quadro), c_(c), riga_(quadro.Riga()) {
        const double cifre = q_.LarghezzaTesto("0000");
        campo_ = q_.Tutto().Dentro(cifre + riga_, riga_ * 2.4, riga_ * 1.2, riga_ * 2.6);
        const double rotazione = c_.Mj / c_.SjRd;
        const double flessibile = c_.conLuce ? 1.3 * c_.Mj / c_.limiti[1].S : 0;
        phiMax_ = std::min(std::max(1.6 * rotazione, flessibile), 4 * rotazione);
        const double sopra = std::min((riga_ + 4) / campo_.altezza, 0.5); // of the text on the highest level
        mMax_ = std::max(1.2, 1 / (1 - sopra)) * std::max(c_.Mj, c_.Msd);
        occupate_ = {Casella(c_.Mj, TestoRd(), RdSotto())};
        if (c_.Msd > 0)
            occupate_.push_back(Casella(c_.Msd, TestoSd(), SdSotto()));
    }

    void Traccia() {
        Assi();
        Limiti();
        Giunto();
        Agente();
        if (!c_.conLuce)
            q_.Testo({campo_.sinistra + 2, campo_.alto - 2}, "luce non data: senza limiti", Allinea::Sinistra,
                     Posa::Basso);
    }

private:
    [[nodiscard]] Punto In(double phi, double M) const {
        return {campo_.sinistra + phi / phiMax_ * campo_.larghezza,
                campo_.Basso() - M / mMax_ * campo_.altezza};
    }

    void Assi() const {
        const Punto origine = In(0, 0);
        q_.Contorno(Estremi::Piatti);
        Quadro::Linea(origine, {campo_.Destra(), origine.y});
        Quadro::Linea(origine, {origine.x, campo_.alto});
        TaccheRotazione();
        TaccheMomento();
        q_.Testo({campo_.Destra(), campo_.Basso() + riga_ * 2.5}, "rotazione [mrad]", Allinea::Destra,
                 Posa::Basso);
        q_.Testo({2, 2}, nomeAsse, Allinea::Sinistra, Posa::Alto);
    }

    /// As many figures as find room.
    void TaccheRotazione() const {
        const double posto = q_.LarghezzaTesto("00000");
        const double passo = PassoTondo(1000 * phiMax_ * posto / campo_.larghezza);
        for (double mrad = 0; mrad <= 1000 * phiMax_ * (1 + 1e-9); mrad += passo) {
            const Punto p = In(mrad / 1000, 0);
            q_.Fine();
            Quadro::Linea(p, p + Punto{0, 4});
            q_.Testo(p + Punto{0, 5}, Cifre(mrad), Allinea::Centro, Posa::Alto);
        }
    }

    void TaccheMomento() const {
        const double passo = PassoTondo(mMax_ * 1.6 * riga_ / campo_.altezza);
        for (double M = passo; M <= mMax_ * (1 + 1e-9); M += passo) {
            const Punto p = In(0, M);
            q_.Fine();
            Quadro::Linea(p - Punto{4, 0}, p);
            q_.Testo(p - Punto{6, 0}, Cifre(M), Allinea::Destra, Posa::Mezzo);
        }
    }

    static std::string Cifre(double valore) { return TestoPiano(std::round(valore * 1e6) / 1e6); }

    struct NomeLimite {
        std::string_view nome;
        double centro, mezza;
    };

    /// Lines of the limits to the upper or the right edge; their names stand there.
    void Limiti() {
        std::vector<NomeLimite> inAlto;
        for (const CurvaGiunto::Limite& l : c_.limiti) {
            if (!(l.S > 0))
                continue;
            const bool alto = mMax_ / l.S <= phiMax_;
            const Punto fine = alto ? In(mMax_ / l.S, mMax_) : In(phiMax_, phiMax_ * l.S);
            q_.Fine(TipoLinea::Tratteggiata);
            Quadro::Linea(In(0, 0), fine);
            if (alto)
                inAlto.push_back({l.nome, fine.x, q_.LarghezzaTesto(l.nome) / 2});
            else
                NomeADestra(fine, l.nome);
        }
        if (InRiga(inAlto, 0, campo_.sinistra))
            return;
        std::vector<NomeLimite> sopra; // every second one, beside the name of the axis
        std::vector<NomeLimite> sotto;
        for (std::size_t i = 0; i < inAlto.size(); ++i)
            (i % 2 == 1 ? sopra : sotto).push_back(inAlto[i]);
        InRiga(sopra, 1, 2 + q_.LarghezzaTesto(nomeAsse) + riga_ / 2, true);
        InRiga(sotto, 0, campo_.sinistra, true);
    }

    /// Names over the upper edge as their lines stand, from the steepest on, however wide each is.
    /// @param riga   lines above the edge
    /// @param anche  where they have no room as well
    /// @return  whether they have room beside each other
    bool InRiga(const std::vector<NomeLimite>& nomi, int riga, double sinistra, bool anche = false) const {
        std::vector<double> centri;
        std::vector<double> mezze;
        for (const auto& [nome, x, mezza] : nomi) {
            const double primo = sinistra + mezza;
            const double centro = std::clamp(x, primo, std::max(primo, campo_.Destra() - mezza));
            centri.push_back(centri.empty() ? centro : std::max(centro, centri.back() + 1));
            mezze.push_back(mezza + riga_ / 3);
        }
        centri = Distanziati(centri, mezze);
        const double fuori = nomi.empty() ? 0 : std::max(0.0, sinistra - centri[0] + mezze[0]);
        const bool entrano = nomi.empty() || centri.back() + fuori + nomi.back().mezza <= q_.Tutto().Destra();
        for (std::size_t i = 0; (entrano || anche) && i < nomi.size(); ++i)
            q_.Testo({centri[i] + fuori, campo_.alto - 2 - riga * riga_}, nomi[i].nome, Allinea::Centro,
                     Posa::Basso);
        return entrano;
    }

    /// The name of a line that ends at the right edge: over its end, else where it is free, farther down the
    /// line, under it, at last a line or two above.
    void NomeADestra(Punto fine, std::string_view nome) {
        const double l = q_.LarghezzaTesto(nome);
        const Punto origine = In(0, 0);
        const CampoQuadro prima{fine.x - 2 - l, fine.y - 3 - riga_, l, riga_};
        CampoQuadro scelta = prima;
        constexpr int passi = 40;
        constexpr int righe = 3;
        for (int i = 0; i < righe * passi && !Libera(scelta); ++i) {
            const Punto p = origine + (fine - origine) * (1 - double(i % passi) / passi);
            const int alzata = 1 + i / passi;
            scelta = {p.x - 2 - l, p.y - 3 - alzata * riga_, l, riga_};
            if (const CampoQuadro sotto{p.x + 4, p.y + 2, l, riga_}; !Libera(scelta) && Libera(sotto))
                scelta = sotto;
        }
        if (!Libera(scelta))
            scelta = prima;
        occupate_.push_back(scelta);
        q_.Testo({scelta.Destra(), scelta.Basso()}, nome, Allinea::Destra, Posa::Basso);
    }

    /// Inside the axes and apart from the texts before.
    [[nodiscard]] bool Libera(const CampoQuadro& c) const {
        return c.sinistra >= campo_.sinistra && c.Destra() <= campo_.Destra() && c.alto >= campo_.alto &&
               c.Basso() <= campo_.Basso() && std::ranges::none_of(occupate_, [&](const CampoQuadro& o) {
                   return c.sinistra < o.Destra() && o.sinistra < c.Destra() && c.alto < o.Basso() &&
                          o.alto < c.Basso();
               });
    }

    void Giunto() const {
        const Punto ultimo = In(phiMax_, c_.Mj);
        std::vector<Punto> linea;
        for (const auto& [phi, M] : c_.salita)
            linea.push_back(In(phi, M));
        linea.push_back(ultimo);
        PennaPlt(pennaInchiostro);
        LineaStilePlt(2 * spessoreContorno, TipoLinea::Continua, Estremi::Quadri);
        Quadro::Spezzata(linea);
        Scritta(Casella(c_.Mj, TestoRd(), RdSotto()), TestoRd());
        q_.Fine(TipoLinea::TrattoPuntoCorto);
        Quadro::Linea(In(0, c_.Mel), linea[1]);
        PennaPlt(pennaInchiostro);
        Quadro::Disco(linea[1], 3, Fondo::Pieno);
        Quadro::Disco(linea[linea.size() - 2], 3, Fondo::Pieno);
    }

    /// The acting moment as a level, and its point on the line; in red where the joint does not carry it.
    void Agente() const {
        if (!(c_.Msd > 0))
            return;
        const bool oltre = c_.Msd > c_.Mj;
        q_.Fine(TipoLinea::Tratteggiata);
        if (oltre)
            PennaPlt(pennaGoverna);
        Quadro::Linea(In(0, c_.Msd), In(phiMax_, c_.Msd));
        if (!oltre && c_.SSd > 0) {
            PennaPlt(pennaInchiostro);
            LineaStilePlt(spessoreContorno);
            Quadro::Cerchio(In(c_.Msd / c_.SSd, c_.Msd), 4.5);
        }
        Scritta(Casella(c_.Msd, TestoSd(), SdSotto()), TestoSd());
    }

    [[nodiscard]] std::string TestoRd() const { return "Mj,Rd " + Kn(c_.Mj); }
    [[nodiscard]] std::string TestoSd() const {
        return "Mj,Sd " + Kn(c_.Msd) + (c_.Msd > c_.Mj ? " > Mj,Rd" : "");
    }

    /// Both texts stand on their levels, the lower one under its own where the levels are near each other.
    [[nodiscard]] bool Vicini() const {
        return std::abs(c_.Msd - c_.Mj) / mMax_ * campo_.altezza < 1.3 * riga_;
    }
    [[nodiscard]] bool RdSotto() const { return c_.Msd > c_.Mj && Vicini(); }
    [[nodiscard]] bool SdSotto() const { return c_.Msd <= c_.Mj && Vicini(); }

    /// Of a text at the right end of a level.
    [[nodiscard]] CampoQuadro Casella(double M, const std::string& testo, bool sotto) const {
        const Punto fine = In(phiMax_, M);
        const double l = q_.LarghezzaTesto(testo);
        return {fine.x - 2 - l, sotto ? fine.y + 3 : fine.y - 3 - riga_, l, riga_};
    }

    /// A text on a ground of its own: limits may cross there.
    void Scritta(const CampoQuadro& c, const std::string& testo) const {
        Quadro::Area(std::array<Punto, 4>{{{c.sinistra - 1, c.alto},
                                           {c.Destra(), c.alto},
                                           {c.Destra(), c.Basso()},
                                           {c.sinistra - 1, c.Basso()}}},
                     Fondo::Sfondo);
        q_.Testo({c.Destra(), c.alto}, testo, Allinea::Destra, Posa::Alto);
    }

    static std::string Kn(double M) {
        std::string testo = FormatoCifre(4, M);
        return testo.erase(0, testo.find_first_not_of(' '));
    }

    const Quadro& q_;
    const CurvaGiunto& c_;
    double riga_;
    CampoQuadro campo_;
    double phiMax_ = 0, mMax_ = 0;
    std::vector<CampoQuadro> occupate_; ///< by texts inside the axes
};

} // namespace

Disegno DiagrammaRigidezza(const Giunto& giunto) {
    Disegno disegno{"Rigidezza del giunto", {}, {440, 280}, {300, 160}};
    disegno.PlottaInOggetto = [curva = CurvaGiunto(giunto), misura = disegno.misura](Superficie* oggetto,
                                                                                     std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        if (curva.calcolata)
            Tavola(quadro, curva).Traccia();
        else
            quadro.Testo(quadro.Tutto().Centro(), "Giunto non calcolato", Allinea::Centro, Posa::Mezzo);
    };
    return disegno;
}

std::vector<std::pair<double, double>> PuntiMomentoRotazione(const Giunto& giunto) {
    constexpr double mrad = 1000;
    std::vector<std::pair<double, double>> punti = CurvaGiunto(giunto).salita;
    for (auto& [phi, M] : punti)
        phi *= mrad;
    return punti;
}

} // namespace sagomi
