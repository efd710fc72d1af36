#include "catalogue/ui/LettoreDati.h"

#include <QScopeGuard>

namespace sagomi {

LettoreDati::LettoreDati(QObject* parent) : QObject(parent), modello_(lettore_) {
    lettore_.rigaCambiata = [this] {
        if (inCambio_)
            annuncio_ = true; // the views must know the new rows before anybody asks them
        else
            emit rigaCambiata();
    };
}

void LettoreDati::Refresh(const std::string& nome) {
    annuncio_ = false;
    {
        inCambio_ = true;
        modello_.CominciaCambio();
        const auto done = qScopeGuard([this] {
            inCambio_ = false;
            modello_.FinisceCambio();
        });
        lettore_.Refresh();
        if (!nome.empty() && !lettore_.CercaRecord(nome))
            lettore_.MoveFirst();
    }
    if (annuncio_)
        emit rigaCambiata();
}

void LettoreDati::Update() {
    modello_.CominciaCambio();
    const auto done = qScopeGuard([this] { modello_.FinisceCambio(); });
    lettore_.Update();
}

} // namespace sagomi
