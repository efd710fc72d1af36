#include "joints/ui/ServiziGiunto.h"

#include "joints/Nodo.h"

namespace sagomi {

const TabellaSelezione& ServiziGiunto::Selezioni() const {
    static const TabellaSelezione none;
    const auto& joint = NodoInMano().ConnessioneCorrente;
    return joint ? joint->RisultatiIntermedi_Estrai() : none;
}

} // namespace sagomi
