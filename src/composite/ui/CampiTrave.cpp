#include "composite/ui/CampiTrave.h"

#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>
#include <array>
#include <stdexcept>

#include "frame/NumeroPulito.h"

namespace sagomi {

namespace {

/// Boxes that hold words.
constexpr std::array<std::string_view, 3> parole{"txtTitolo", "Txt_Prof", "Txt_TipoAcciaio"};

template <typename T> T& Trova(const QWidget& screen, std::string_view name, int index) {
    QString full = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    if (index != CampiMaschera::campoSolo)
        full += u'_' + QString::number(index);
    T* control = screen.findChild<T*>(full);
    if (control == nullptr)
        throw std::out_of_range("nessun controllo si chiama " + full.toStdString());
    return *control;
}

} // namespace

std::string CampiTrave::Testo(std::string_view controllo, int indice) const {
    std::string text = Trova<QLineEdit>(schermo_, controllo, indice).text().toStdString();
    return std::ranges::find(parole, controllo) == parole.end() ? NumeroRipulito(text) : text;
}

void CampiTrave::Testo(std::string_view controllo, int indice, std::string_view testo) {
    Trova<QLineEdit>(schermo_, controllo, indice)
        .setText(QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())));
}

void CampiTrave::Opzione(std::string_view controllo, int indice) {
    Trova<QRadioButton>(schermo_, controllo, indice).setChecked(true);
}

} // namespace sagomi
