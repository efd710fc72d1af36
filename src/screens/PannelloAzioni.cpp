#include "screens/PannelloAzioni.h"

#include "frame/ui/Casella.h"

namespace sagomi {

namespace {

Voce Forza() {
    return {{"LblTxtNsd", "N     [kN]", "Sd"},
            "TxtNsd",
            8,
            "Forza assiale di progetto, positiva se di compressione",
            "NSd [kN]"};
}

const std::vector<Voce>& Azioni() {
    static const std::vector<Voce> entries = {Forza(),
                                              {{"LblTxtMysd", "M      [kNm]", "y,Sd"},
                                               "TxtMysd",
                                               8,
                                               "Momento di progetto intorno a y-y",
                                               "My,Sd [kNm]"},
                                              {{"LblTxtMzsd", "M      [kNm]", "z,Sd"},
                                               "TxtMzsd",
                                               8,
                                               "Momento di progetto intorno a z-z",
                                               "Mz,Sd [kNm]"}};
    return entries;
}

std::vector<Voce> Lunghezze() {
    return {{{"LblL0_0", "L      [m]", "0y"},
             "Txt_L0_0",
             7,
             "Lunghezza di libera inflessione intorno a y-y, EC3 6.3.1",
             "L0 y-y [m]"},
            {{"LblL0_1", "L      [m]", "0z"},
             "Txt_L0_1",
             7,
             "Lunghezza di libera inflessione intorno a z-z, EC3 6.3.1",
             "L0 z-z [m]"}};
}

std::vector<Voce> Colonna(bool angolare) {
    std::vector<Voce> entries = Lunghezze();
    if (angolare)
        entries.push_back({{"LblL0_2", "L      [m]", "0v"},
                           "Txt_L0_2",
                           7,
                           "Lunghezza di libera inflessione intorno a v-v, EC3 6.3.1",
                           "L0 v-v [m]"});
    else
        entries.insert(entries.begin(), Forza());
    return entries;
}

Casella* Trova(const QWidget& panel, const char* name) {
    return panel.findChild<Casella*>(QString::fromLatin1(name));
}

} // namespace

PannelloAzioni::PannelloAzioni(QWidget* parent) : GruppoVoci(parent) {
    setTitle(tr("Azioni di progetto"));
    InRiga(Azioni());
    TxtNsd = Trova(*this, "TxtNsd");
    TxtMysd = Trova(*this, "TxtMysd");
    TxtMzsd = Trova(*this, "TxtMzsd");
}

PannelloColonna::PannelloColonna(QWidget* parent, bool angolare) : GruppoVoci(parent) {
    setTitle(angolare ? tr("Lunghezze di libera inflessione")
                      : tr("Azione assiale e lunghezze di libera inflessione"));
    InRiga(Colonna(angolare));
    TxtNsd = Trova(*this, "TxtNsd");
    Txt_L0_0 = Trova(*this, "Txt_L0_0");
    Txt_L0_1 = Trova(*this, "Txt_L0_1");
    Txt_L0_2 = Trova(*this, "Txt_L0_2");
}

} // namespace sagomi
