#include "joints/DisegnoNodo.h"

#include "drawing/Grafica.h"
#include "frame/Messaggi.h"
#include "joints/LimitiGiunto.h"
#include "joints/MascheraGiunti.h"
#include "joints/Nodo.h"
#include "joints/SagomiNodo.h"

namespace sagomi {

namespace {

/// The name that is proposed for files: the kind and the sections.
std::string Nome(const Nodo& nodo) {
    std::string name = "Giunto";
    for (const SezioneDoppioT* section : {nodo.Colonnainf.get(), nodo.ConnessioneCorrente->Trave.get()})
        if (section != nullptr && !section->Designation.empty())
            name += " " + section->Designation;
    return name;
}

/// A node that the drawing can keep: sections and current joint of its own.
std::shared_ptr<Nodo> Copia(const Nodo& nodo) {
    auto copy = std::make_shared<Nodo>(nodo);
    const auto own = [](const std::shared_ptr<SezioneDoppioT>& s) {
        return s ? std::make_shared<SezioneDoppioT>(*s) : s;
    };
    copy->Colonnainf = own(nodo.Colonnainf);
    copy->TraveDx = own(nodo.TraveDx.Riferimento());
    copy->TraveSx = own(nodo.TraveSx.Riferimento());
    for (const int i : {1, 2}) {
        const auto& joint = nodo.Giunti[i].Riferimento();
        if (!joint)
            continue;
        auto mine = std::make_shared<Giunto>(*joint);
        const auto beam = (i == 1 ? copy->TraveDx : copy->TraveSx).Riferimento();
        mine->PuntatoreSezioni(beam ? beam : own(joint->Trave), copy->Colonnainf);
        copy->Giunti[i] = mine;
        if (joint == nodo.ConnessioneCorrente)
            copy->ConnessioneCorrente = mine;
    }
    return copy;
}

Disegno DisegnoDi(const std::shared_ptr<Nodo>& copy) {
    if (!copy->ConnessioneCorrente)
        return {};
    return {Nome(*copy), [copy](Superficie* target, std::string_view) {
                copy->Uscita = Dispositivo;
                copy->PlottaInOggetto(target, {copy->Tipovie});
            }};
}

} // namespace

Disegno DisegnoNodo(const Nodo& nodo) {
    const auto copy = Copia(nodo);
    Giunto* joint = copy->ConnessioneCorrente.get();
    if (joint != nullptr && !joint->Acquisito && SagomiAssegnati(*copy)) {
        const MessaggiTaciuti quiet;
        PreparaLimiti(*joint);
        joint->Derivati_Calcola();
        copy->CalcolaIrrigidimenti();
    }
    return DisegnoDi(copy);
}

Disegno DisegnoSelezione(const Nodo& nodo, const TabellaSelezione& tabella, int riga) {
    const auto copy = Copia(nodo);
    if (copy->ConnessioneCorrente)
        copy->ConnessioneCorrente->DatiSelezione_Completa(tabella, riga);
    return DisegnoDi(copy);
}

} // namespace sagomi
