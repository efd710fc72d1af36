#include "choice/ValoriScelta.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <string_view>
#include <type_traits>

#include "choice/RelazioneVerifica.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Unita.h"
#include "sections/ColonnaInstabilita.h"
#include "sections/PressoFlessione.h"
#include "sections/SezioneDoppia.h"

namespace sagomi {

namespace {

constexpr double nessuno = RigaScelta::nessuno;

void AggiungeColonna(Valori& v, const std::string& asse, const ColonnaCalcolata& c, double lamda,
                     const std::string& curva, double NbRd) {
    const std::string clausola = "ENV 1993-1-1 5.5.1";
    v.push_back({"lamda" + asse, "λ" + asse, lamda, "", clausola});
    v.push_back({"lamdaSegnato" + asse, "λ segnato " + asse, c.lamdaSegnato, "", clausola});
    v.push_back({"curva" + asse, "curva " + asse, curva, "", "ENV 1993-1-1 tab. 5.5.3"});
    v.push_back({"alfa" + asse, "α" + asse, c.alfa, "", "ENV 1993-1-1 tab. 5.5.1"});
    v.push_back({"fi" + asse, "φ" + asse, c.fi, "", clausola});
    v.push_back({"chi" + asse, "χ" + asse, c.chi, "", clausola});
    v.push_back({"Nb" + asse + "Rd", "Nb," + asse + ",Rd", N_a_kN(NbRd), "kN", clausola});
}

/// From the slenderness to the resistance about each axis.
template <typename S> void AggiungeColonne(Valori& v, const S& s, const SagomoVerificato& e) {
    const double betaA = s.betaA();
    v.push_back({"betaA", "βA", betaA, "", "ENV 1993-1-1 5.5.1.1"});
    AggiungeColonna(v, "y", CalcolaColonna(s.LamdaY(), s.fy, betaA, s.Area, e.CurvaY), s.LamdaY(), e.CurvaY,
                    e.riga.NbyRd);
    AggiungeColonna(v, "z", CalcolaColonna(s.LamdaZ(), s.fy, betaA, s.Area, e.CurvaZ), s.LamdaZ(), e.CurvaZ,
                    e.riga.NbzRd);
    if constexpr (ConLunghezzaV<S>)
        AggiungeColonna(v, "v", CalcolaColonna(s.LamdaV(), s.fy, betaA, s.Area, e.CurvaZ), s.LamdaV(),
                        e.CurvaZ, e.riga.NbvRd);
}

/// The terms of a sum; of no forces none.
/// @param verifica  the check they belong to, after their names
void AggiungeTermini(Valori& v, const std::string& verifica, const TerminiInterazione& t,
                     const std::string& clausola, bool agisce) {
    v.push_back({"termineN" + verifica, "N", agisce ? t.N() : nessuno, "", clausola});
    v.push_back({"termineMy" + verifica, "My", agisce ? t.y.Valore() : nessuno, "", clausola});
    v.push_back({"termineMz" + verifica, "Mz", agisce ? t.z.Valore() : nessuno, "", clausola});
}

/// The verdict; of no forces none.
void AggiungeEsito(Valori& v, const RigaScelta& r) {
    Valore& esito = v.emplace_back(Valore{"verificato", "esito", r.verificato, "", ""});
    if (r.SenzaVerdetto())
        esito.valore = nessuno;
    v.push_back({"motivo", "motivo", r.motivo, "", ""});
}

constexpr const char* interazione = "ENV 1993-1-1 5.5.4";

void AggiungeMembratura(Valori& v, const SezioneDoppioT& s, bool agisce) {
    v.push_back({"betaMy", "βM,y", s.BetaMy, "", "ENV 1993-1-1 fig. 5.5.3"});
    v.push_back({"betaMz", "βM,z", s.BetaMz, "", "ENV 1993-1-1 fig. 5.5.3"});
    v.push_back({"muy", "μy", s.muY(), "", interazione});
    v.push_back({"muz", "μz", s.muZ(), "", interazione});
    v.push_back({"ky", "ky", s.kY(), "", interazione});
    v.push_back({"kz", "kz", s.kZ(), "", interazione});
    AggiungeTermini(v, "Membratura", s.TerminiMNInstab(), interazione, agisce);
}

/// Lateral-torsional buckling has been checked and has a critical moment.
void AggiungeSvergolamento(Valori& v, const SezioneDoppioT& s, bool agisce) {
    const char* norma = "ENV 1993-1-1 5.5.2";
    v.push_back({"LLT", "L", mm_a_m(s.LLT), "m", norma});
    v.push_back({"C1", "C1", s.C1, "", "ENV 1993-1-1 F.1.2"});
    v.push_back({"Mcr", "Mcr", s.LLT > 0 ? Nmm_a_kNm(s.Mcr) : nessuno, "kNm", "ENV 1993-1-1 F.1.2"});
    v.push_back({"lamdaSegnatoLT", "λ segnato LT", s.LamdaLT, "", norma});
    v.push_back({"chiLT", "χLT", s.ChiLT, "", norma});
    v.push_back({"betaMLT", "βM,LT", s.BetaMLT, "", "ENV 1993-1-1 fig. 5.5.3"});
    v.push_back({"muLT", "μLT", s.muLT(), "", interazione});
    v.push_back({"kLT", "kLT", s.kLT(), "", interazione});
    AggiungeTermini(v, "Svergolamento", s.TerminiFlessoTorsionale(), interazione, agisce);
}

/// The steps of the checks, as far as the kind has them.
void AggiungePassi(Valori& v, const SagomoVerificato& e, const Richiesta& r) {
    const bool agisce = !e.riga.SenzaVerdetto();
    std::visit(
        [&]<typename S>(const S& s) {
            if constexpr (ConDiagrammi<S>) {
                AggiungeTermini(v, "Sezione", PerLaSezione(s, r).TerminiMNResistenza(), "EC3 6.2.9", agisce);
                AggiungeMembratura(v, s, agisce);
                if (!std::isnan(e.riga.MbRd))
                    AggiungeSvergolamento(v, s, agisce);
            }
        },
        e.sezione);
}

/// The decimal number that a single stands for.
double Decimale(double v) {
    char testo[32];
    double d = v;
    std::from_chars(testo, std::to_chars(testo, testo + sizeof testo, static_cast<float>(v)).ptr, d);
    return d;
}

void Toglie(Valori& v, std::initializer_list<std::string_view> chiavi) {
    for (Valore& valore : v)
        if (std::ranges::find(chiavi, valore.chiave) != chiavi.end())
            valore.valore = nessuno;
}

/// What means nothing for a kind of section.
template <typename S> void ToglieIgnorati(Valori& v) {
    if (!ConDiagrammi<S>)
        Toglie(v, {"L", "k", "Kw", "C1", "C2", "C3", "za"});
    if (!ConCoppia<S>)
        Toglie(v, {"doppi", "accostati"});
    if (!std::is_same_v<S, SezioneSagomoL>)
        Toglie(v, {"L0v"});
}

} // namespace

Valori ValoriRichiesta(const Richiesta& r, const SezioneQualsiasi* genere) {
    Valori v{{"acciaio", "acciaio", r.TipoAcciaio, "", ""},
             {"fy", "fy", r.fy, "N/mm2", ""},
             {"fu", "fu", r.fu, "N/mm2", ""},
             {"normativa", "normativa", NomeNormativa(), "", ""},
             {"GammaM0", "γM0", Decimale(GammaM0), "", ""},
             {"GammaM1", "γM1", Decimale(GammaM1), "", ""},
             {"N", "NSd", N_a_kN(r.NSd), "kN", ""},
             {"My", "My,1", Nmm_a_kNm(r.y.M1), "kNm", ""},
             {"My2", "My,2", Nmm_a_kNm(r.y.M2), "kNm", ""},
             {"MyQ", "My,Q", Nmm_a_kNm(r.y.MQ), "kNm", ""},
             {"Mz", "Mz,1", Nmm_a_kNm(r.z.M1), "kNm", ""},
             {"Mz2", "Mz,2", Nmm_a_kNm(r.z.M2), "kNm", ""},
             {"MzQ", "Mz,Q", Nmm_a_kNm(r.z.MQ), "kNm", ""},
             {"diagramma", "diagramma", double(r.pict), "", ""},
             {"L0y", "L0,y", mm_a_m(r.L0y), "m", ""},
             {"L0z", "L0,z", mm_a_m(r.L0z), "m", ""},
             {"L0v", "L0,v", mm_a_m(r.L0v), "m", ""},
             {"L", "L", r.LLT ? mm_a_m(*r.LLT) : nessuno, "m", ""},
             {"k", "k", r.k, "", ""},
             {"Kw", "kw", r.Kw, "", ""},
             {"C1", "C1", r.C1.value_or(nessuno), "", ""},
             {"C2", "C2", r.c2, "", ""},
             {"C3", "C3", r.c3, "", ""},
             {"za", "za", r.za, "mm", ""},
             {"doppi", "doppi", r.doppi ? r.dDoppi : nessuno, "mm", ""},
             {"accostati", "accostati", r.doppi && r.accostati, "", ""}};
    for (Valore& valore : v)
        valore.cifre = Cifre::Date;
    if (!LunghezzaSvergolamento(r))
        Toglie(v, {"k", "Kw", "C1", "C2", "C3", "za"});
    if (genere != nullptr)
        std::visit([&v]<typename S>(const S&) { ToglieIgnorati<S>(v); }, *genere);
    return v;
}

Valori ValoriVerifica(const SagomoInGara& sagomo, const SagomoVerificato& e, const Richiesta& richiesta) {
    const RigaScelta& r = e.riga;
    Valori v{{"designazione", "sagomo", sagomo.Designazione(), "", ""},
             {"famiglia", "famiglia", sagomo.famiglia, "", ""},
             {"g", "g", r.g, "kg/m", ""},
             {"h", "h", r.h, "mm", ""},
             {"b", "b", r.b, "mm", ""},
             {"A", "A", mm2_a_cm2(r.A), "cm2", ""},
             {"classe", "classe", double(r.classe), "", "EC3 tab. 5.2"},
             {"NplRd", "Npl,Rd", N_a_kN(r.NplRd), "kN", "ENV 1993-1-1 5.4.4"}};
    std::visit([&](const auto& s) { AggiungeColonne(v, s, e); }, e.sezione);
    v.push_back({"McyRd", "Mc,y,Rd", Nmm_a_kNm(r.McyRd), "kNm", "ENV 1993-1-1 5.4.5"});
    v.push_back({"MbRd", "Mb,Rd", Nmm_a_kNm(r.MbRd), "kNm", "ENV 1993-1-1 5.5.2"});
    AggiungePassi(v, e, richiesta);
    v.push_back({"sezione", "sezione", r.sezione, "", "EC3 6.2.9", Cifre::Tutte});
    v.push_back({"membratura", "membratura", r.membratura, "", interazione, Cifre::Tutte});
    v.push_back({"svergolamento", "svergolamento", r.svergolamento, "", interazione, Cifre::Tutte});
    v.push_back({"massimo", "massimo", r.massimo, "", "", Cifre::Tutte});
    v.push_back({"governa", "governa", std::string(NomeVerifica(r.governa)), "", ""});
    AggiungeEsito(v, r);
    return v;
}

Valori ValoriRiga(const SagomoInGara& sagomo, const RigaScelta& r) {
    Valori v{{"designazione", "sagomo", sagomo.Designazione(), "", ""},
             {"famiglia", "famiglia", sagomo.famiglia, "", ""},
             {"g", "g", r.g, "kg/m", ""},
             {"h", "h", r.h, "mm", ""},
             {"b", "b", r.b, "mm", ""},
             {"A", "A", mm2_a_cm2(r.A), "cm2", ""},
             {"classe", "cl.", double(r.classe), "", ""},
             {"NplRd", "Npl,Rd", N_a_kN(r.NplRd), "kN", ""},
             {"NbyRd", "Nb,y,Rd", N_a_kN(r.NbyRd), "kN", ""},
             {"NbzRd", "Nb,z,Rd", N_a_kN(r.NbzRd), "kN", ""},
             {"NbvRd", "Nb,v,Rd", N_a_kN(r.NbvRd), "kN", ""},
             {"McyRd", "Mc,y,Rd", Nmm_a_kNm(r.McyRd), "kNm", ""},
             {"MbRd", "Mb,Rd", Nmm_a_kNm(r.MbRd), "kNm", ""},
             {"sezione", "sezione", r.sezione, "", "", Cifre::Tutte},
             {"membratura", "membr.", r.membratura, "", "", Cifre::Tutte},
             {"svergolamento", "sverg.", r.svergolamento, "", "", Cifre::Tutte},
             {"massimo", "massimo", r.massimo, "", "", Cifre::Tutte},
             {"governa", "governa", std::string(NomeVerifica(r.governa)), "", ""}};
    AggiungeEsito(v, r);
    return v;
}

} // namespace sagomi
