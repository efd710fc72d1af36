#pragma once

#include "composite/MascheraTrave.h"

class QWidget;

namespace sagomi {

/// The boxes and options of a screen by the names of their controls. Numbers are cleaned as all entries are.
class CampiTrave : public MascheraTrave {
public:
    explicit CampiTrave(QWidget& schermo) : schermo_(schermo) {}

    // A control that the screen does not have throws std::out_of_range.
    [[nodiscard]] std::string Testo(std::string_view controllo, int indice) const override;
    void Testo(std::string_view controllo, int indice, std::string_view testo) override;
    void Opzione(std::string_view controllo, int indice) override;

private:
    QWidget& schermo_;
};

} // namespace sagomi
