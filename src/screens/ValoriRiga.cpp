#include "screens/ValoriRiga.h"

#include <QGridLayout>

#include <algorithm>
#include <string>

#include "catalogue/Famiglie.h"
#include "frame/ui/ColonnaDecimali.h"
#include "screens/VociSezione.h"

namespace sagomi {

namespace {

constexpr int colonne = 2; ///< of boxes: as high as the rooms beside them
constexpr int cifre = 7;
constexpr int cifreIngobbamento = 9; ///< the only values above a million

bool Ingobbamento(std::string_view heading) { return heading.ends_with("(cm6)"); }

/// Names and captions of the boxes: a Voce points to them.
struct Testi {
    std::string nome, etichetta, testo, letta;
};

std::vector<Testi> ScriveTesti(const std::vector<std::string_view>& headings) {
    std::vector<Testi> texts;
    for (std::size_t i = 1; i < headings.size(); ++i) {
        const std::string index = std::to_string(i);
        const std::string heading(headings[i]);
        const std::string caption = i == 1 ? "g (Kg/m)" : heading; // whatever capitals the sheet has
        texts.push_back({"TxtProf_" + index, "LblProf_" + index, caption + ":", heading});
    }
    return texts;
}

/// Boxes of one column are equally wide.
int Larghezza(const std::vector<Testi>& texts, std::size_t i, std::size_t rows) {
    const std::size_t first = i / rows * rows;
    const std::size_t last = std::min(texts.size(), first + rows);
    for (std::size_t k = first; k < last; ++k)
        if (Ingobbamento(texts[k].letta))
            return cifreIngobbamento;
    return cifre;
}

} // namespace

ValoriRiga::ValoriRiga(QWidget* parent) : GruppoVoci(parent) {
    setTitle(tr("Valori del sagomo"));
    setProperty("copribile", true); // they stand in the table too
}

void ValoriRiga::ImpostaSchermo(const QByteArray& nome) {
    schermo_ = nome;
    const std::vector<Testi> texts = ScriveTesti(Intestazioni(nome.toStdString()));
    const std::size_t rows = (texts.size() + colonne - 1) / colonne;
    std::vector<Voce> boxes;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const Testi& t = texts[i];
        boxes.push_back({{t.etichetta.c_str(), t.testo.c_str()},
                         t.nome.c_str(),
                         Larghezza(texts, i, rows),
                         DescrizioneColonna(t.letta, nome.toStdString()),
                         t.letta.c_str(),
                         Genere::risultato});
    }
    const int below = static_cast<int>(rows);
    QGridLayout* grid = InColonne(boxes, below, 4);
    AllineaDecimali(*grid);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding), below, 0);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0, grid->columnCount());
}

} // namespace sagomi
