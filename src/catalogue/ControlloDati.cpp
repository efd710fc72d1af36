#include "catalogue/ControlloDati.h"

#include <cmath>
#include <string>

#include "catalogue/Lettore.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

constexpr double mm_cm = 1.0 / 10;
constexpr double mm2_cm2 = 1.0 / 100;
constexpr double mm3_cm3 = 1.0 / 1000;
constexpr double mm4_cm4 = 1.0 / 10000;
constexpr double mm6_cm6 = 1.0 / 1000000;

constexpr double tolGeometria = 0.01;           ///< exact but for the rounding of the table
constexpr double tolTorsioneRastremata = 0.092; ///< JotaT on tapered flanges
constexpr double tolIngobbamento = 0.04;        ///< JotaOmega takes the flanges' thickness for small
constexpr double tolIngobbamentoRastremata = 0.05;

} // namespace

bool ConfrontaValore(double db, double calc, double tol) {
    if (db == 0)
        return false;
    const double differenza = std::abs(db - calc) / db;
    if (!(differenza > tol))
        return false;
    Avvisa("Riscontrato valore troppo approssimato nel database\r" + FormatoCifre(4, db) +
           "\r invece del valore calcolato coi dati geometrici\r" + FormatoCifre(4, calc) +
           "\rDifferenza del " + FormatoCifre(4, differenza * 100) + "%\r");
    return true;
}

void ConfrontaVoci(const Lettore& riga, const std::vector<VoceControllo>& voci) {
    if (riga.BOF() || riga.EOF_())
        return;
    for (const VoceControllo& voce : voci)
        ConfrontaValore(riga.Numero(voce.campo), voce.calcolato, voce.tolleranza);
}

std::vector<VoceControllo> VociLaminati(SezioneDoppioT& sezione) {
    if (!sezione.SezioneGenericaCorrente || !(sezione.SezioneGenericaCorrente->Area > 0))
        return {};
    const SezioneGenerica& s = *sezione.SezioneGenericaCorrente;
    const bool rastremata = sezione.r2 > 0;
    const double iy = std::sqrt(s.JotaXG / s.Area);
    const double iz = std::sqrt(s.JotaYG / s.Area);
    const double tolT = rastremata ? tolTorsioneRastremata : tolGeometria;
    const double tolW = rastremata ? tolIngobbamentoRastremata : tolIngobbamento;
    return {{8, s.Area * mm2_cm2, tolGeometria},
            {9, s.JotaXG * mm4_cm4, tolGeometria},
            {10, s.WxSuperiore * mm3_cm3, tolGeometria},
            {12, iy * mm_cm, tolGeometria},
            {13, s.JotaYG * mm4_cm4, tolGeometria},
            {14, s.WySinistra * mm3_cm3, tolGeometria},
            {16, iz * mm_cm, tolGeometria},
            {17, sezione.JotaT() * mm4_cm4, tolT},
            {18, sezione.JotaOmega() * mm6_cm6, tolW}};
}

void ControlloDatiLaminati(const Lettore& riga, SezioneDoppioT& sezione) {
    ConfrontaVoci(riga, VociLaminati(sezione));
}

} // namespace sagomi
