#pragma once

#include <vector>

#include "frame/ui/NavigaSchermi.h"
#include "joints/Nodo.h"
#include "joints/Sezioni.h"
#include "joints/ui/ServiziGiunto.h"

namespace sagomi::prove {

/// Stands for the screen of the joint: a node, a table of improvements, and what it was asked for.
class GiuntoFinto : public Schermo, public ServiziGiunto {
public:
    GiuntoFinto() : Schermo(QStringLiteral("GiuntoFinto")) {
        nodo.ImpostaNodo();
        nodo.CaratterizzaGiunti();
        nodo.PuntatoreTraveDestra(IPE300());
        nodo.PuntatoreTraveSinistra(IPE600());
        nodo.PuntatoreColonna(HEB300());
        nodo.PreparaSalvataggio();
    }
    [[nodiscard]] const Nodo& NodoInMano() const override { return nodo; }
    void PlottaSelezione(int riga) override { plottate.push_back(riga); }
    void InserisceSelezione(int riga) override { inserite.push_back(riga); }
    [[nodiscard]] const TabellaSelezione& Selezioni() const override { return tabella; }
    [[nodiscard]] bool InRicerca() const override { return inRicerca; }

    void UnaFila(double indice, const char* M) {
        tabella.Aggiunge({indice, std::string(M), 16.0, 12.0, 160.0, 35.0, 32.5});
    }
    void DueFile() { tabella.Aggiunge({1.0, "88.10", 20.0, 15.0, 180.0, 40.0, 45.0, 50.0, 38.0, 12.0}); }

    Nodo nodo;
    TabellaSelezione tabella;
    bool inRicerca = false;
    std::vector<int> plottate, inserite;
};

} // namespace sagomi::prove
