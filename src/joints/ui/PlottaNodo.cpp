#include "joints/ui/PlottaNodo.h"

#include "drawing/ui/FrmPltSezione.h"
#include "frame/ui/Schermo.h"
#include "joints/Nodo.h"

namespace sagomi {

void PlottaNodo(Schermo& da, const Nodo& nodo) {
    FrmPltSezione::Mostra(da, da.objectName(), [&nodo] { return DisegnoNodo(nodo); });
}

void PlottaSelezione(Schermo& da, const Nodo& nodo, const TabellaSelezione& tabella, int riga) {
    FrmPltSezione::Mostra(da, da.objectName(),
                          [drawing = DisegnoSelezione(nodo, tabella, riga)] { return drawing; });
}

} // namespace sagomi
