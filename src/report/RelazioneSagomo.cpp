#include "report/RelazioneSagomo.h"

#include <utility>

#include "drawing/Grafica.h"
#include "report/CapitoliSagomo.h"
#include "report/CapitoloEfficace.h"
#include "report/PassiSagomo.h"
#include "sections/Duttilita.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

namespace {

template <typename S> Relazione Testa(const std::string& titolo, const S& s, const std::string& maschera) {
    Relazione r{.titolo = titolo, .oggetto = s.Designation};
    r.maschera = maschera;
    r.disegno = {s.Designation, [tenuta = s](Superficie* oggetto, std::string_view schermo) {
                     tenuta.PlottaSezione(oggetto, schermo, Dispositivo);
                 }};
    return r;
}

template <typename S>
Relazione Resistenze(const S& s, const std::string& maschera, const RichiestaDuttilita& duttilita) {
    Relazione r = Testa("Momento resistente", s, maschera);
    r.capitoli = {CapitoloDati(s), CapitoloClassi(s), CapitoloEfficace(s), CapitoloResistenze(s)};
    if (duttilita.Lstar > 0)
        r.capitoli.push_back(CapitoloDuttilita({s.h, s.b, s.tw, s.tf, s.Area, s.fy, s.fu}, duttilita));
    return SenzaCapitoliVuoti(std::move(r));
}

} // namespace

Relazione TestaSagomo(const std::string& titolo, const SezioneDoppioT& s, const std::string& maschera) {
    return Testa(titolo, s, maschera);
}

Relazione TestaSagomo(const std::string& titolo, const SezioneSagomoU& s, const std::string& maschera) {
    return Testa(titolo, s, maschera);
}

Relazione TestaSagomo(const std::string& titolo, const SezioneSagomoL& s, const std::string& maschera) {
    return Testa(titolo, s, maschera);
}

Relazione RelazioneSezione(const SezioneDoppioT& s, const std::string& maschera) {
    Relazione r = Testa("Verifica della sezione", s, maschera);
    r.capitoli = {CapitoloDati(s),     CapitoloAzioni(s),     CapitoloClassi(s),
                  CapitoloEfficace(s), CapitoloResistenze(s), CapitoloSezione(s)};
    return SenzaCapitoliVuoti(std::move(r));
}

Relazione RelazioneMembratura(const SezioneDoppioT& s, const CurveInstabilita& curve,
                              const DiagrammiMembratura& diagrammi, const std::string& maschera) {
    Relazione r = Testa("Verifica della membratura", s, maschera);
    r.capitoli = {CapitoloDati(s),
                  CapitoloAzioni(s),
                  CapitoloMomenti(diagrammi.y, diagrammi.z, diagrammi.tipo, diagrammi.pict),
                  CapitoloClassi(s),
                  CapitoloEfficace(s),
                  CapitoloResistenze(s),
                  CapitoloInstabilita(s, curve),
                  CapitoloMembratura(s)};
    return SenzaCapitoliVuoti(std::move(r));
}

Relazione RelazioneSvergolamento(const SezioneDoppioT& s, const std::string& maschera) {
    Relazione r = Testa("Verifica allo svergolamento", s, maschera);
    r.capitoli = {CapitoloDati(s),
                  CapitoloAzioni(s),
                  CapitoloClassi(s),
                  CapitoloEfficace(s),
                  CapitoloResistenze(s),
                  CapitoloInstabilita(s, {s.CurvaInstabilita("yy"), s.CurvaInstabilita("zz")}),
                  CapitoloSvergolamento(s, true)};
    return SenzaCapitoliVuoti(std::move(r));
}

Relazione RelazioneResistenze(const SezioneDoppioT& s, const std::string& maschera,
                              const RichiestaDuttilita& duttilita) {
    return Resistenze(s, maschera, duttilita);
}

Relazione RelazioneResistenze(const SezioneSagomoU& s, const std::string& maschera,
                              const RichiestaDuttilita& duttilita) {
    return Resistenze(s, maschera, duttilita);
}

} // namespace sagomi
