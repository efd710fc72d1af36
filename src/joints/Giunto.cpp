#include "joints/Giunto.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "fasteners/Bullone.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Unita.h"
#include "joints/DiagrammaAlfa.h"
#include "joints/OsservatoreProgetto.h"

namespace sagomi {

using std::numbers::sqrt2;

namespace {

constexpr double gambaUtile = 0.8; ///< part of the leg of a weld, or of the root, that holds the bolt off

const SezioneDoppioT& Assegnata(const std::shared_ptr<SezioneDoppioT>& sezione, const char* ruolo) {
    if (!sezione)
        throw ErroreNumerato(std::string("Sagomo non assegnato: ") + ruolo);
    return *sezione;
}

} // namespace

Singolo Giunto::Radice(const SezioneDoppioT& s) { return s.Saldata ? s.a() : s.r1; }

double Giunto::Falfa(double lambda1, double lambda2) { return AlfaDiagramma(lambda1, lambda2); }

void Giunto::PuntatoreSezioni(std::shared_ptr<SezioneDoppioT> trave,
                              std::shared_ptr<SezioneDoppioT> colonna) {
    Trave = std::move(trave);
    Colonna = std::move(colonna);
}

const SezioneDoppioT& Giunto::t() const { return Assegnata(Trave, "trave"); }
const SezioneDoppioT& Giunto::c() const { return Assegnata(Colonna, "colonna"); }

FattoriParziali Giunto::Fattori() const {
    return fattori_ ? *fattori_ : FattoriParziali{GammaM0, GammaM1, GammaM2};
}

CoefficientiForo Giunto::Coefficienti() const {
    return coefficienti_ ? *coefficienti_ : CoefficientiForo::InForza();
}

void Giunto::Avviso(std::string_view testo) const {
    if (osservatore_ != nullptr)
        osservatore_->Avviso(testo);
    else
        Avvisa(testo, {}, Icona::Informazione);
}

// ENV 1993-1-1 7.5.2 (1).
std::optional<double> Giunto::DiametroForo(double d) {
    if (d >= 8 && d <= 14)
        return d + 1;
    if (d >= 16 && d <= 24)
        return d + 2;
    if (d >= 27 && d <= 68)
        return d + 3;
    return {};
}

void Giunto::IndiceBullone(std::int16_t i) {
    const DimensioneBullone& riga = TabellaBulloni()[i];
    indiceBullone_ = i;
    Diam = riga.d;
    Areares = riga.Ares;
    d0 = DiametroForo(Diam).value_or(0);
    bul_k = riga.k;
    bul_e = riga.e;
    bul_s = riga.s;
    bul_m = riga.m;
    rond_d2 = riga.d2;
    rond_s = riga.sr;
}

void Giunto::sTraveColonna_Calcola() {
    sColonna_ = Radice(c());
    sTrave_ = Radice(t());
}

void Giunto::Braccio_Calcola() { z = mm_a_m(t().h - t().tf); }

void Giunto::Derivati_Calcola() {
    m2 = d2 - gambaUtile * sqrt2 * Af;
    pint = t().h - 2 * t().tf - 2 * d2;
    lb = c().tf + tf + rond_s + (bul_m + bul_k) / 2;
    ec = (c().b - bf) / 2 + ef;
    mc = (c().b - c().tw) / 2 - gambaUtile * sColonna_ - ec;
    w = bf - 2 * ef;
    mf = (bf - t().tw) / 2 - gambaUtile * sqrt2 * aw - ef;
    if (nf == 1)
        hf = ArrotondaSu(t().h - t().tf);
    if (nf != 2)
        return;
    dX = L - ex;
    mx = dX - gambaUtile * sqrt2 * Af;
    p = t().tf + d2 + dX;
    hf = t().h + L + u;
}

void Giunto::AzzeraFilaEsterna() {
    Ftrd_FilaSup_c = Ftrd_FilaSupRid_c = FtRd_FilaSup_f = FtRd_EffSup = leffEsterna_ = zEst_ = 0;
    k6_Estesa = mu4_Estesa = mu5_Estesa = mu6_Estesa = 0;
    Sj_MjRd_Estesa = Sj_Mela_Estesa = Sj_MjSd_Estesa = 0;
    ex = mx = dX = mxc = p = L = u = 0;
    ComponenteDeboleFilaSup.clear();
}

std::shared_ptr<Giunto> Giunto::CopiaDiLavoro() const {
    auto copia = std::make_shared<Giunto>(*this);
    copia->Trave = std::make_shared<SezioneDoppioT>(t());
    copia->Colonna = std::make_shared<SezioneDoppioT>(c());
    copia->fattori_ = Fattori();
    return copia;
}

void Giunto::Riprende(const Giunto& copia) {
    Giunto nuovo = copia;
    nuovo.PuntatoreSezioni(Trave, Colonna);
    nuovo.fattori_ = fattori_;
    nuovo.coefficienti_ = coefficienti_;
    nuovo.osservatore_ = osservatore_;
    *this = nuovo;
}

void Giunto::RiprendeEsito(const Giunto& copia) {
    parametriSelezione_ = copia.parametriSelezione_;
    Acquisito = copia.Acquisito;
    Eq_Saldatura_ = copia.Eq_Saldatura_; // the same throat is not told of again
}

// Room for the holes. The groups of the sums matter: their whole parts are taken.

double Giunto::RaccordoColonna() const { return Coefficienti().Raccordo * sColonna_; }

double Giunto::RaccordoTrave() const { return sqrt2 * Coefficienti().Raccordo * aw; }

double Giunto::efmin_Ricerca() const { return ArrotondaSu(Coefficienti().Bordo * d0); }

double Giunto::efMax_Calcola() const {
    const double foro = Coefficienti().Anima * d0;
    const auto massimo = [&](double larghezza) {
        return std::min((larghezza - c().tw) / 2 - (RaccordoColonna() + foro),
                        (larghezza - t().tw) / 2 - (RaccordoTrave() + foro));
    };
    return ParteIntera(bf > 0 ? std::min(massimo(c().b), massimo(bf)) : massimo(c().b));
}

double Giunto::exMin_Calcola() const { return ArrotondaSu(Coefficienti().Bordo * d0); }

double Giunto::d2Min_Calcola() const {
    const CoefficientiForo k = Coefficienti();
    return ArrotondaSu(sqrt2 * k.Raccordo * Af + k.Anima * d0);
}

std::optional<double> Giunto::LMin_Calcola() const {
    const CoefficientiForo k = Coefficienti();
    const double foro = DiametroForo(TabellaBulloni()[1].d).value_or(0);
    const double X = ArrotondaSu(k.Bordo * foro + k.Anima * foro + sqrt2 * k.Raccordo * Af);
    const double resto = std::fmod(X, 5);
    if (TipoProgetto == 1)
        return X;
    if (TipoProgetto == 0)
        return resto == 0 ? X : X + 5 - resto;
    return {};
}

std::int16_t Giunto::IndiceBulloneMaxGiunto_Calcola() const {
    const CoefficientiForo k = Coefficienti();
    const double unForo = k.Anima + k.Bordo;
    const auto massimo = [&](double larghezza) {
        return std::min(ParteIntera(((larghezza - c().tw) / 2 - RaccordoColonna()) / unForo),
                        ParteIntera(((larghezza - t().tw) / 2 - RaccordoTrave()) / unForo));
    };
    double A = massimo(c().b);
    if (bf > 0)
        A = std::min(A, massimo(bf));
    if (nf == 2)
        A = std::min(A, ParteIntera((L - sqrt2 * k.Raccordo * Af) / unForo));
    for (int i = 1; i <= TabellaBulloni().n(); ++i)
        if (DiametroForo(TabellaBulloni()[i].d).value_or(0) > A)
            return static_cast<std::int16_t>(std::max(i - 1, 1));
    return 1;
}

void Giunto::DatiSelezione_Imposta(const RecordMigliore& record) {
    IndiceBullone(record.bullone);
    tf = record.tf;
    bf = record.bf;
    ef = record.ef;
    d2 = record.d2;
    if (nf == 2) {
        ex = record.ex;
        L = record.L;
        u = record.u;
    }
    Derivati_Calcola();
}

void Giunto::DatiSelezione_Completa(const TabellaSelezione& tabella, int riga) {
    const auto colonna = [&](int i) { return tabella.Numero(riga, i); };
    RecordMigliore r{.bullone = 0, .tf = colonna(4), .bf = colonna(5), .ef = colonna(6)};
    for (int i = 1; i <= TabellaBulloni().n(); ++i)
        if (TabellaBulloni()[i].d == colonna(3))
            r.bullone = static_cast<std::int16_t>(i);
    r.d2 = colonna(nf == 2 ? 9 : 7);
    if (nf == 2) {
        r.ex = colonna(7);
        r.L = colonna(7) + colonna(8);
        r.u = colonna(10);
    }
    sTraveColonna_Calcola();
    DatiSelezione_Imposta(r);
}

} // namespace sagomi
