#pragma once

#include <memory>

#include "screens/SchermoDi.h"

namespace Ui {
class frmDoppioT;
}

namespace sagomi {

/// Rolled double-T sections: the first screen of every run.
class frmDoppioT : public SchermoDi<SezioneDoppioT> {
    Q_OBJECT
public:
    frmDoppioT();
    ~frmDoppioT() override;

    void Risultati() override;

protected:
    void LeggeSezione(const Lettore& riga, SezioneDoppioT& sezione) override;
    void ControllaSezione(const Lettore& riga, SezioneDoppioT& sezione) override;
    void MostraSagoma(const SezioneDoppioT* sezione) override;

private:
    std::unique_ptr<Ui::frmDoppioT> ui_;
};

} // namespace sagomi
