#include "catalogue/ControlloDati.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "catalogue/Lettore.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

namespace {

constexpr double tolGeometria = 0.01;           ///< exact but for the rounding of the table
constexpr double tolTorsioneRastremata = 0.092; ///< JotaT on tapered flanges
constexpr double tolIngobbamento = 0.04;        ///< JotaOmega takes the flanges' thickness for small
constexpr double tolIngobbamentoRastremata = 0.05;
constexpr double tolJzRastremata = 0.02;  ///< the tables' tf of tall channels lies beside that of the slope
constexpr double tolTorsioneU = 0.092;    ///< JotaT on channels
constexpr double tolIngobbamentoU = 0.45; ///< JotaOmega works on the full width of the flanges

template <typename S> bool ConContorno(const S& sezione) {
    return sezione.SezioneGenericaCorrente && sezione.SezioneGenericaCorrente->Area > 0;
}

/// How far a value is off, over that of the table; 0 where nothing is compared.
double Differenza(double db, double calc) { return db == 0 ? 0 : std::abs(db - calc) / db; }

std::string Avviso(double db, double calc) {
    return "Riscontrato valore troppo approssimato nel database\r" + FormatoCifre(4, db) +
           "\r invece del valore calcolato coi dati geometrici\r" + FormatoCifre(4, calc) +
           "\rDifferenza del " + FormatoCifre(4, Differenza(db, calc) * 100) + "%\r";
}

/// The section and the quantity that is spoken of.
std::string Titolo(const Lettore& riga, const VoceControllo& voce) {
    return riga.Testo(0) + " - " + riga.NomeCampo(voce.campo);
}

} // namespace

bool ConfrontaValore(double db, double calc, double tol) {
    if (!(Differenza(db, calc) > tol))
        return false;
    Avvisa(Avviso(db, calc));
    return true;
}

void ConfrontaVoci(const Lettore& riga, const std::vector<VoceControllo>& voci) {
    if (riga.BOF() || riga.EOF_())
        return;
    std::vector<VoceControllo> off;
    std::ranges::copy_if(voci, std::back_inserter(off), [&riga](const VoceControllo& voce) {
        return Differenza(riga.Numero(voce.campo), voce.calcolato) > voce.tolleranza;
    });
    for (const VoceControllo& voce : off) {
        const std::string text = Avviso(riga.Numero(voce.campo), voce.calcolato);
        if (&voce == &off.back())
            Avvisa(text, Titolo(riga, voce));
        else if (AvvisaSaltabile(text, Titolo(riga, voce)))
            return;
    }
}

std::vector<VoceControllo> VociLaminati(SezioneDoppioT& sezione) {
    if (!ConContorno(sezione))
        return {};
    const SezioneGenerica& s = *sezione.SezioneGenericaCorrente;
    const bool rastremata = sezione.r2 > 0;
    const double iy = std::sqrt(s.JotaXG / s.Area);
    const double iz = std::sqrt(s.JotaYG / s.Area);
    const double tolT = rastremata ? tolTorsioneRastremata : tolGeometria;
    const double tolW = rastremata ? tolIngobbamentoRastremata : tolIngobbamento;
    return {{8, mm2_a_cm2(s.Area), tolGeometria},
            {9, mm4_a_cm4(s.JotaXG), tolGeometria},
            {10, mm3_a_cm3(s.WxSuperiore), tolGeometria},
            {12, mm_a_cm(iy), tolGeometria},
            {13, mm4_a_cm4(s.JotaYG), tolGeometria},
            {14, mm3_a_cm3(s.WySinistra), tolGeometria},
            {16, mm_a_cm(iz), tolGeometria},
            {17, mm4_a_cm4(sezione.JotaT()), tolT},
            {18, mm6_a_cm6(sezione.JotaOmega()), tolW}};
}

std::vector<VoceControllo> VociSaldati(const SezioneDoppioT& sezione) {
    if (!ConContorno(sezione))
        return {};
    const SezioneGenerica& s = *sezione.SezioneGenericaCorrente;
    const double iy = mm_a_cm(std::sqrt(s.JotaXG / s.Area));
    const double iz = mm_a_cm(std::sqrt(s.JotaYG / s.Area));
    const double A = mm2_a_cm2(s.Area);
    const double Iy = mm4_a_cm4(s.JotaXG);
    const double Wsup = mm3_a_cm3(s.WxSuperiore);
    if (!sezione.SaldataAsimm)
        return {{7, A, tolGeometria},
                {8, Iy, tolGeometria},
                {9, Wsup, tolGeometria},
                {11, iy, tolGeometria},
                {15, iz, tolGeometria}};
    return {{9, A, tolGeometria},     {10, Iy, tolGeometria},
            {11, Wsup, tolGeometria}, {12, mm3_a_cm3(s.WxInferiore), tolGeometria},
            {14, iy, tolGeometria},   {18, iz, tolGeometria}};
}

std::vector<VoceControllo> VociSagomiU(const SezioneSagomoU& sezione) {
    if (!ConContorno(sezione))
        return {};
    const SezioneGenerica& s = *sezione.SezioneGenericaCorrente;
    return {{8, mm2_a_cm2(s.Area), tolGeometria},
            {9, mm4_a_cm4(s.JotaXG), tolGeometria},
            {13, mm4_a_cm4(s.JotaYG), sezione.pendenza > 0 ? tolJzRastremata : tolGeometria},
            {17, mm4_a_cm4(sezione.JotaT()), tolTorsioneU},
            {18, mm6_a_cm6(sezione.JotaOmega()), tolIngobbamentoU}};
}

std::vector<VoceControllo> VociSagomiL(const SezioneSagomoL& sezione) {
    if (!ConContorno(sezione))
        return {};
    const SezioneGenerica& s = *sezione.SezioneGenericaCorrente;
    return {{7, mm2_a_cm2(s.Area), tolGeometria},
            {8, mm4_a_cm4(s.JotaXG), tolGeometria},
            {11, mm4_a_cm4(s.JotaYG), tolGeometria}};
}

void ControlloDatiSagomi(const Lettore& riga, const SezioneSagomoU& sezione) {
    ConfrontaVoci(riga, VociSagomiU(sezione));
}

void ControlloDatiSagomi(const Lettore& riga, const SezioneSagomoL& sezione) {
    ConfrontaVoci(riga, VociSagomiL(sezione));
}

void ControlloDatiSaldati(const Lettore& riga, const SezioneDoppioT& sezione) {
    ConfrontaVoci(riga, VociSaldati(sezione));
}

void ControlloDatiLaminati(const Lettore& riga, SezioneDoppioT& sezione) {
    ConfrontaVoci(riga, VociLaminati(sezione));
}

} // namespace sagomi
