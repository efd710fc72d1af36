#include "joints/ui/frmGiuntiCampi.h"

#include <iterator>

#include "joints/ui/frmGiunti.h"

namespace sagomi {

namespace {

using Condiviso = std::shared_ptr<SezioneDoppioT>;

const Condiviso& Dx(const Nodo& n) { return n.TraveDx.Riferimento(); }
const Condiviso& Sx(const Nodo& n) { return n.TraveSx.Riferimento(); }

double M(const Condiviso& s) { return s ? double(s->Mysd) : 0; }
double V(const Condiviso& s) { return s ? double(s->Vsd()) : 0; }
double N(const Condiviso& s) { return s ? double(s->NSd) : 0; }
double L(const Condiviso& s) { return s ? s->lunghezza() : 0; }

SezioneDoppioT& Colonna(Nodo& n) {
    if (!n.Colonnainf)
        n.PuntatoreColonna(std::make_shared<SezioneDoppioT>());
    return *n.Colonnainf;
}

/// The left joint, where there is one.
Giunto* Sinistro(Nodo& n) { return n.NumeroGiunti == 2 ? n.Giunti[2].Usa().get() : nullptr; }

Giunto& G(Nodo& n) { return *n.ConnessioneCorrente; }
const Giunto& G(const Nodo& n) { return *n.ConnessioneCorrente; }

template <double Giunto::*m> double Legge(const Nodo& n) { return G(n).*m; }
template <double Giunto::*m> void Scrive(Nodo& n, double v) { G(n).*m = v; }

/// The extension of the plate follows from both distances of the outer row.
template <double Giunto::*m> void ScriveEsterna(Nodo& n, double v) {
    G(n).*m = v;
    G(n).L = G(n).ex + G(n).dX;
}

using enum GenereCampo;

const CampoGiunto campi[] = {
    {"TxtL_Dx", luce, [](const Nodo& n) { return L(Dx(n)); },
     [](Nodo& n, double v) { n.TraveDx->lunghezza() = v; }},
    {"TxtM_Dx", azione, [](const Nodo& n) { return M(Dx(n)); },
     [](Nodo& n, double v) {
         n.TraveDx->Mysd = v;
         n.Giunti[1]->MbSd = v;
     }},
    {"TxtT_T", azione, [](const Nodo& n) { return V(Dx(n)); },
     [](Nodo& n, double v) {
         n.TraveDx->Vsd() = v;
         n.Giunti[1]->VbSd = v;
     }},
    {"TxtN_Dx", azione, [](const Nodo& n) { return N(Dx(n)); },
     [](Nodo& n, double v) {
         n.TraveDx->NSd = v;
         n.Giunti[1]->NbSd = v;
     }},
    {"TxtL_Sn", luce, [](const Nodo& n) { return L(Sx(n)); },
     [](Nodo& n, double v) { n.TraveSx->lunghezza() = v; }},
    {"TxtM_Sn", azione, [](const Nodo& n) { return M(Sx(n)); },
     [](Nodo& n, double v) {
         n.TraveSx->Mysd = v;
         if (Giunto* g = Sinistro(n))
             g->MbSd = v;
     }},
    {"TxtV_Sn", azione, [](const Nodo& n) { return V(Sx(n)); },
     [](Nodo& n, double v) {
         n.TraveSx->Vsd() = v;
         if (Giunto* g = Sinistro(n))
             g->VbSd = v;
     }},
    {"TxtN_Sn", azione, [](const Nodo& n) { return N(Sx(n)); },
     [](Nodo& n, double v) {
         n.TraveSx->NSd = v;
         if (Giunto* g = Sinistro(n))
             g->NbSd = v;
     }},
    {"TxtM_Col", azione, [](const Nodo& n) { return M(n.Colonnainf); },
     [](Nodo& n, double v) { Colonna(n).Mysd = v; }},
    {"TxtV_Col", azione, [](const Nodo& n) { return V(n.Colonnainf); },
     [](Nodo& n, double v) { Colonna(n).Vsd() = v; }},
    {"TxtN_Col", azione, [](const Nodo& n) { return N(n.Colonnainf); },
     [](Nodo& n, double v) { Colonna(n).NSd = v; }},
    {"TxtV_Sup", azione, [](const Nodo& n) { return double(n.VColSup); },
     [](Nodo& n, double v) { n.VColSup = v; }},
    {"Texttf_1", limite, Legge<&Giunto::tf_max>, Scrive<&Giunto::tf_max>},
    {"TextL", limite, Legge<&Giunto::L_max>, Scrive<&Giunto::L_max>, &frmGiunti::L_max_controlla},
    {"Textu_1", limite, Legge<&Giunto::u_max>, Scrive<&Giunto::u_max>, &frmGiunti::u_max_controlla},
    {"Texttf", parametro, Legge<&Giunto::tf>, Scrive<&Giunto::tf>},
    {"Textbf", parametro, Legge<&Giunto::bf>, Scrive<&Giunto::bf>, &frmGiunti::bf_controlla},
    {"Textef", parametro, Legge<&Giunto::ef>, Scrive<&Giunto::ef>, &frmGiunti::ef_controlla},
    {"Textd2", parametro, Legge<&Giunto::d2>, Scrive<&Giunto::d2>, &frmGiunti::d2_Controlla},
    {"Textex", parametro, Legge<&Giunto::ex>, ScriveEsterna<&Giunto::ex>, &frmGiunti::ex_controlla},
    {"Textdx", parametro, Legge<&Giunto::dX>, ScriveEsterna<&Giunto::dX>, &frmGiunti::dx_Controlla},
    {"Textu", parametro, Legge<&Giunto::u>, Scrive<&Giunto::u>, &frmGiunti::u_controlla},
};

} // namespace

std::span<const CampoGiunto> CampiDelGiunto() { return campi; }

} // namespace sagomi
