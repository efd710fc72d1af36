#pragma once

#include <string>

#include "report/CapitoliMomento.h"
#include "report/CapitoliStabilita.h"
#include "report/Relazione.h"

/// The reports of the checks of a section, as it is now. The drawing keeps a copy of it.
namespace sagomi {

class SezioneDoppioT;
class SezioneSagomoL;
class SezioneSagomoU;

/// What stands above all of them.
/// @param maschera  name of the screen that the drawing is made for
Relazione TestaSagomo(const std::string& titolo, const SezioneDoppioT& s, const std::string& maschera);
Relazione TestaSagomo(const std::string& titolo, const SezioneSagomoU& s, const std::string& maschera);
Relazione TestaSagomo(const std::string& titolo, const SezioneSagomoL& s, const std::string& maschera);

/// Axial force with bending on the section.
Relazione RelazioneSezione(const SezioneDoppioT& s, const std::string& maschera);

/// The moments of a member and the shape of their diagram.
struct DiagrammiMembratura {
    MomentiMembratura y, z;
    std::int16_t tipo = diagrammaEstremita, pict = pictEstremitaConcordi;
};

/// Axial force and bending with flexural buckling.
Relazione RelazioneMembratura(const SezioneDoppioT& s, const CurveInstabilita& curve,
                              const DiagrammiMembratura& diagrammi, const std::string& maschera);

/// Lateral-torsional buckling.
Relazione RelazioneSvergolamento(const SezioneDoppioT& s, const std::string& maschera);

/// What the section bears in bending, with the ductility parameter where a shear length is given.
Relazione RelazioneResistenze(const SezioneDoppioT& s, const std::string& maschera,
                              const RichiestaDuttilita& duttilita = {});
Relazione RelazioneResistenze(const SezioneSagomoU& s, const std::string& maschera,
                              const RichiestaDuttilita& duttilita = {});

} // namespace sagomi
