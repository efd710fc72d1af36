#include "joints/SagomiNodo.h"

#include <array>
#include <cmath>
#include <string>

#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "joints/Nodo.h"
#include "sections/AreaEfficace.h"

namespace sagomi {

namespace {

constexpr const char* titolo = "Giunto Flangiato";
constexpr std::int16_t classeSnella = 4;

using Condiviso = std::shared_ptr<SezioneDoppioT>;

void Dice(const std::string& testo) { Avvisa(testo, titolo, Icona::Stop); }

bool DueTravi(const Nodo& nodo) { return nodo.NumeroGiunti == 2; }

/// The sections as they would be.
struct Terna {
    const SezioneDoppioT* dx;
    const SezioneDoppioT* sx;
    const SezioneDoppioT* colonna;
};

const SezioneDoppioT* Presente(const Condiviso& s) { return Assegnato(s) ? s.get() : nullptr; }

Terna Con(const Nodo& nodo, RuoloSagomo ruolo, const SezioneDoppioT& scelta) {
    Terna t{Presente(nodo.TraveDx.Riferimento()),
            DueTravi(nodo) ? Presente(nodo.TraveSx.Riferimento()) : nullptr, Presente(nodo.Colonnainf)};
    (ruolo == RuoloSagomo::TraveDx ? t.dx : ruolo == RuoloSagomo::TraveSx ? t.sx : t.colonna) = &scelta;
    return t;
}

bool ClasseAmmessa(RuoloSagomo ruolo, const SezioneDoppioT& s) {
    const std::string fine = " è di classe 4, non rispettando le ipotesi di calcolo dell'Appendice J.\r\n"
                             "                                           ";
    if (ruolo == RuoloSagomo::Colonna) {
        if (s.ClasseCompressione != classeSnella)
            return true;
        Dice("Il sagomo scelto come colonna" + fine + "Scegliere un altro sagomo.");
        return false;
    }
    return s.ClasseFlessioneY != classeSnella ||
           Chiede("Il sagomo scelto come trave" + fine + "Continuare lo stesso?.", titolo, Icona::Stop);
}

bool LarghezzeAmmesse(const Terna& t) {
    const auto piuLarga = [&t](const SezioneDoppioT* trave) {
        return trave != nullptr && t.colonna != nullptr && trave->b > t.colonna->b;
    };
    const std::string fine = " ha una larghezza superiore a quella della colonna :\r\n"
                             "la connessione non può essere realizzata cambiare il sagomo della trave\r\n";
    if (piuLarga(t.dx)) {
        Dice("La trave destra" + fine + "o dellla colonna");
        return false;
    }
    if (piuLarga(t.sx)) {
        Dice("La trave sinistra" + fine + "o della colonna");
        return false;
    }
    return true;
}

/// A stiffener between two beams is not to be steeper than 45 degrees.
bool AltezzeAmmesse(const Terna& t) {
    if (t.dx == nullptr || t.sx == nullptr || t.colonna == nullptr)
        return true;
    if (std::abs(t.dx->h - t.sx->h) <= t.colonna->h - 2 * t.colonna->tf)
        return true;
    Dice("Le travi scelte hanno una differenza di altezze eccessiva:\r\n"
         "cambiare sagomi (Appendice J-2.6.1.(2)).");
    return false;
}

/// Data files have no quotes inside a text.
void SenzaVirgolette(std::string& testo) {
    for (std::size_t i = testo.find('"'); i != std::string::npos; i = testo.find('"', i))
        testo.replace(i, 1, "''");
}

Condiviso Copia(const SezioneDoppioT& scelta, const Condiviso& prima) {
    auto s = std::make_shared<SezioneDoppioT>(scelta);
    SenzaVirgolette(s->Designation);
    SenzaVirgolette(s->TipoAcciaio);
    s->NSd = prima ? double(prima->NSd) : 0;
    s->Mysd = prima ? double(prima->Mysd) : 0;
    s->Vsd() = prima ? double(prima->Vsd()) : 0;
    s->lunghezza() = prima ? prima->lunghezza() : 0;
    return s;
}

void Cambiato(Nodo& nodo, std::int16_t giunto) {
    nodo.NOT_Acquisito(giunto);
    if (nodo.Giunti[giunto]->Criterio1)
        nodo.AzzeraParametriConnessione(giunto);
}

SezioneDoppioT Calcolata(const SezioneDoppioT& s) {
    SezioneDoppioT copia = s;
    copia.NSd = copia.Mysd = 0; // kN in a node
    const MessaggiTaciuti muto;
    InizializzaConAreaEfficace(copia);
    return copia;
}

template <typename F> void PerOgniSagomo(Nodo& nodo, F&& f) {
    for (const Condiviso& s : {nodo.TraveDx.Riferimento(), nodo.TraveSx.Riferimento(), nodo.Colonnainf})
        if (Assegnato(s))
            f(*s, Calcolata(*s));
}

} // namespace

bool Assegnato(const Condiviso& sagomo) { return sagomo && sagomo->h > 0; }

bool SagomiAssegnati(const Nodo& nodo) {
    return Assegnato(nodo.Colonnainf) && Assegnato(nodo.TraveDx.Riferimento()) &&
           (!DueTravi(nodo) || Assegnato(nodo.TraveSx.Riferimento()));
}

bool AssegnaSagomo(Nodo& nodo, RuoloSagomo ruolo, const SezioneDoppioT& scelta) {
    const Terna t = Con(nodo, ruolo, scelta);
    if (!ClasseAmmessa(ruolo, scelta) || !LarghezzeAmmesse(t) || !AltezzeAmmesse(t))
        return false;
    switch (ruolo) {
    case RuoloSagomo::TraveDx:
        nodo.PuntatoreTraveDestra(Copia(scelta, nodo.TraveDx.Riferimento()));
        Cambiato(nodo, 1);
        break;
    case RuoloSagomo::TraveSx:
        nodo.PuntatoreTraveSinistra(Copia(scelta, nodo.TraveSx.Riferimento()));
        Cambiato(nodo, 2);
        break;
    case RuoloSagomo::Colonna:
        nodo.PuntatoreColonna(Copia(scelta, nodo.Colonnainf));
        for (std::int16_t i = 1; i <= nodo.NumeroGiunti; ++i)
            Cambiato(nodo, i);
        break;
    case RuoloSagomo::Nessuno:
        return false;
    }
    nodo.No_Acquisito(); // Beta and stiffeners hang on all sections
    return true;
}

std::string FirmaSagomi(const Nodo& nodo) {
    std::string firma = NomeNormativa() + ' ';
    for (const double fattore : {double(GammaM0), double(GammaM1), double(GammaM2)})
        firma += NumeroFile(fattore) + ' ';
    for (const Condiviso& s : {nodo.TraveDx.Riferimento(), nodo.TraveSx.Riferimento(), nodo.Colonnainf})
        firma += (s ? NumeroFile(s->fy) : "-") + ' ';
    return firma;
}

void ToglieVirgolette(Nodo& nodo) {
    for (const Condiviso& s : {nodo.TraveDx.Riferimento(), nodo.TraveSx.Riferimento(), nodo.Colonnainf})
        if (s) {
            SenzaVirgolette(s->Designation);
            SenzaVirgolette(s->TipoAcciaio);
        }
}

void RinnovaResistenze(Nodo& nodo) {
    PerOgniSagomo(nodo, [](SezioneDoppioT& s, const SezioneDoppioT& nuova) {
        s.McyRd = nuova.McyRd;
        s.NplRd = nuova.NplRd;
    });
}

void RinnovaNplRd(Nodo& nodo) {
    PerOgniSagomo(nodo, [](SezioneDoppioT& s, const SezioneDoppioT& nuova) { s.NplRd = nuova.NplRd; });
}

} // namespace sagomi
