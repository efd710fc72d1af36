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
        mMax_ = 1.2 * std::max(c_.Mj, c_.Msd);
    }

    void Traccia() const {
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
        q_.Testo({2, 2}, "M [kNm]", Allinea::Sinistra, Posa::Alto);
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

    /// Lines of the limits to the upper or the right edge; their names stand there.
    void Limiti() const {
        std::vector<double> centri;
        std::vector<double> mezze;
        std::vector<std::string_view> nomi;
        for (const CurvaGiunto::Limite& l : c_.limiti) {
            if (!(l.S > 0))
                continue;
            const bool inAlto = mMax_ / l.S <= phiMax_;
            const Punto fine = inAlto ? In(mMax_ / l.S, mMax_) : In(phiMax_, phiMax_ * l.S);
            q_.Fine(TipoLinea::Tratteggiata);
            Quadro::Linea(In(0, 0), fine);
            if (!inAlto) {
                q_.Testo(fine - Punto{2, 3}, l.nome, Allinea::Destra, Posa::Basso);
                continue;
            }
            const double mezza = q_.LarghezzaTesto(l.nome) / 2;
            const double sinistra = campo_.sinistra + mezza;
            const double centro = std::clamp(fine.x, sinistra, std::max(sinistra, campo_.Destra() - mezza));
            // The names stand as their lines do, from the steepest on, however wide each is.
            centri.push_back(centri.empty() ? centro : std::max(centro, centri.back() + 1));
            mezze.push_back(mezza + riga_ / 3);
            nomi.push_back(l.nome);
        }
        centri = Distanziati(centri, mezze);
        const double fuori = centri.empty() ? 0 : std::max(0.0, campo_.sinistra - centri[0] + mezze[0]);
        for (std::size_t i = 0; i < nomi.size(); ++i)
            q_.Testo({centri[i] + fuori, campo_.alto - 2}, nomi[i], Allinea::Centro, Posa::Basso);
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
        Scritta(ultimo, "Mj,Rd " + Kn(c_.Mj), false);
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
        const bool sotto = std::abs(c_.Msd - c_.Mj) / mMax_ * campo_.altezza < 1.3 * riga_ && !oltre;
        Scritta(In(phiMax_, c_.Msd), "Mj,Sd " + Kn(c_.Msd) + (oltre ? " > Mj,Rd" : ""), sotto);
    }

    /// A text at the right end of a level, on a ground of its own: limits may cross there.
    void Scritta(Punto fine, const std::string& testo, bool sotto) const {
        const double l = q_.LarghezzaTesto(testo);
        const double alto = sotto ? fine.y + 3 : fine.y - 3 - riga_;
        const double destra = fine.x - 2;
        Quadro::Area(std::array<Punto, 4>{{{destra - l - 1, alto},
                                           {destra, alto},
                                           {destra, alto + riga_},
                                           {destra - l - 1, alto + riga_}}},
                     Fondo::Sfondo);
        q_.Testo({destra, alto}, testo, Allinea::Destra, Posa::Alto);
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
