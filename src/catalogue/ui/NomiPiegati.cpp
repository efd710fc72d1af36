#include "catalogue/ui/NomiPiegati.h"

#include <algorithm>
#include <string_view>

namespace sagomi {

namespace {

std::string Piega(const QString& name) {
    QString key = name.toLower();
    key.remove(u' ');
    return key.toStdString();
}

} // namespace

void NomiPiegati::Svuota() {
    testo_.clear();
    fini_.clear();
}

void NomiPiegati::Aggiunge(const std::string& nome) {
    if (std::all_of(nome.begin(), nome.end(), [](unsigned char c) { return c < 0x80; })) {
        for (const char c : nome)
            if (c != ' ')
                testo_ += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    } else {
        testo_ += Piega(QString::fromStdString(nome));
    }
    fini_.push_back(testo_.size());
}

int NomiPiegati::CercaIniziale(const QString& testo) const {
    const std::string key = Piega(testo);
    const std::string_view names = testo_;
    std::size_t inizio = 0;
    for (std::size_t i = 0; i < fini_.size(); ++i) {
        if (names.substr(inizio, fini_[i] - inizio).starts_with(key))
            return static_cast<int>(i);
        inizio = fini_[i];
    }
    return -1;
}

} // namespace sagomi
