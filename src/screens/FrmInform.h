#pragma once

#include <memory>

#include "frame/ui/Schermo.h"

namespace Ui {
class FrmInform;
}

namespace sagomi {

/// What the program is: name, version, rights.
class FrmInform : public Schermo {
    Q_OBJECT
public:
    FrmInform();
    ~FrmInform() override;

    void Apre(Schermo& chiamante);

private:
    std::unique_ptr<Ui::FrmInform> ui_;
};

} // namespace sagomi
