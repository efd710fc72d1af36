#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "frame/CampiMaschera.h"
#include "frame/FileDati.h"
#include "frame/Numeri.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

/// Fields of the full record, in the order of the file.
std::vector<Campo> CampiSagomo(SezioneDoppioT& s) {
    return {&s.fy,
            &s.Designation,
            &s.TipoAcciaio,
            &s.h,
            &s.b,
            &s.tw,
            &s.tf,
            &s.r1,
            &s.r2,
            &s.r,
            &s.Area,
            &s.iY,
            &s.iZ,
            &s.Jz,
            &s.JT,
            &s.Jw,
            &s.Jy,
            &s.L0y,
            &s.L0z,
            &s.Wely,
            &s.Welz,
            &s.Wply,
            &s.Wplz,
            &s.NSd,
            &s.Riservato2,
            &s.Mysd,
            &s.Mzsd,
            &s.fu,
            &s.Riservato1,
            &s.ClasseCompressione,
            &s.ClasseFlessioneY,
            &s.ClasseFlessioneZ,
            &s.NbyRd,
            &s.NbzRd,
            &s.McyRd,
            &s.MczRd,
            &s.eNy,
            &s.eNz,
            &s.WyEff,
            &s.WzEff,
            &s.c,
            &s.d,
            &s.Saldata,
            &s.ClasseWebF,
            &s.ClasseWebC,
            &s.Limite0WebF,
            &s.Limite1WebF,
            &s.Limite0WebC,
            &s.Limite1WebC,
            &s.ClasseAlaF,
            &s.ClasseAlaC,
            &s.Limite0AlaF,
            &s.Limite1AlaF,
            &s.Limite0AlaC,
            &s.Limite1AlaC,
            &s.BetaMy,
            &s.BetaMz,
            &s.BetaMLT,
            &s.k,
            &s.Kw,
            &s.C1,
            &s.c2,
            &s.c3,
            &s.za,
            &s.LLT};
}

/// Moves one field of a screen; texts as they are, numbers by the rules of the screens.
void CampoLeggeScrive(std::string_view modo, CampiMaschera& maschera, std::string_view controllo, int indice,
                      std::string& valore) {
    if (modo == "L")
        valore = maschera.Testo(controllo, indice);
    else
        maschera.Testo(controllo, indice, valore);
}

void CampoLeggeScrive(std::string_view modo, CampiMaschera& maschera, std::string_view controllo, int indice,
                      Singolo& valore) {
    if (modo == "L")
        valore = ValoreNumerico(maschera.Testo(controllo, indice));
    else
        maschera.Testo(controllo, indice, TestoPiano(valore));
}

} // namespace

bool SezioneDoppioT::FileSagomoInOut(std::string_view modo, std::int16_t nFile) {
    const std::vector<Campo> campi = CampiSagomo(*this);
    return std::all_of(campi.begin(), campi.end(),
                       [&](const Campo& campo) { return FileInOut(modo, nFile, {campo}); });
}

bool SezioneDoppioT::LeggeScrive(std::string_view modo, std::int16_t nFile) {
    return FileInOut(modo, nFile, {&Designation, &TipoAcciaio, &fy}) &&
           FileInOut(modo, nFile, {&h, &b, &bAlaInf, &tw, &tf, &tAlaInf, &r1, &r2, &r}) &&
           FileInOut(modo, nFile, {&Saldata, &SaldataAsimm});
}

void SezioneDoppioT::DatiAcciaioClsLeggeScrive(std::string_view modo, CampiMaschera& maschera) {
    CampoLeggeScrive(modo, maschera, "Txt_Prof", 0, Designation);
    CampoLeggeScrive(modo, maschera, "Txt_TipoAcciaio", CampiMaschera::campoSolo, TipoAcciaio);
    CampoLeggeScrive(modo, maschera, "Txt_fy", CampiMaschera::campoSolo, fy);
    int indice = 0;
    for (Singolo* misura : {&b, &bAlaInf, &tf, &tAlaInf, &h, &tw, &r1, &r2, &r})
        CampoLeggeScrive(modo, maschera, "txtHsd", indice++, *misura);
}

} // namespace sagomi
