#include "screens/NoteSezione.h"

#include <QLabel>

#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "sections/FibraInferiore.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

constexpr int cifre = 4;

std::string Cifre(double value) { return std::string(FormatoCifre(cifre, value)); }

} // namespace

std::string NotaMcyRd(const SezioneDoppioT& sezione) {
    const auto M = McyRdInferiore(sezione);
    return M ? "fibra inferiore:" + Cifre(Nmm_a_kNm(*M)) + " kNm" : std::string();
}

std::string NotaVplzRd(const SezioneDoppioT& sezione) {
    const auto V = VplzRdInferiore(sezione);
    return V ? "Vpl,z delle due ali:" + Cifre(N_a_kN(*V)) + " kN" : std::string();
}

QLabel* CreaNota(const char* nome) {
    auto* note = new QLabel;
    note->setObjectName(QString::fromLatin1(nome));
    note->setTextFormat(Qt::PlainText);
    note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    note->hide();
    return note;
}

void MostraNota(QLabel* nota, const std::string& testo) {
    nota->setText(QString::fromStdString(testo));
    nota->setVisible(!testo.empty());
}

} // namespace sagomi
