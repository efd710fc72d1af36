#pragma once

#include <QList>

#include <memory>

#include "screens/SchermoDettaglio.h"

class QLabel;
class QPushButton;

namespace Ui {
class FrmClasseDoppioTU;
}

namespace sagomi {

/// How each plate of a double-T or channel section was classified, EC3 table 5.2: its slenderness, the limits
/// of the class found, the class in bending and in compression. Of a class 4 section the effective outlines
/// can be looked at.
class FrmClasseDoppioTU : public SchermoDettaglio {
    Q_OBJECT
public:
    FrmClasseDoppioTU();
    ~FrmClasseDoppioTU() override;

    /// The lower flange of a welded section with different flanges.
    void CompletaFormAsimmetrici();

protected:
    void Calcola() override;

private:
    template <typename S> void MostraMateriale(const S& s);
    template <typename S> void MostraAnima(const S& s);
    template <typename S> void MostraAla(const S& s);
    template <typename S> void MostraEfficaci(const S& s);
    template <typename S> void MostraValoriEfficaci(const S& s);
    void MostraAlaInferiore(bool visibile);
    void SpiegaClasse() const;
    void PlottaEfficace(int indice);

    std::unique_ptr<Ui::FrmClasseDoppioTU> ui_;
    QList<QLabel*> limitiWeb_;
    QList<QLabel*> limitiAla_;
    QList<QPushButton*> pltAeff_;
};

} // namespace sagomi
