#pragma once

#include <QGroupBox>
#include <QList>

#include <memory>
#include <string>

#include "frame/ui/RegoleEntrate.h"

class QLineEdit;

namespace Ui {
class CalcoloChi;
}

namespace sagomi {

/// A small calculator of the reduction factor for buckling, EC3 6.3.1.2: from the slenderness, or the
/// relative one, the ratio of the areas and the curve. It answers each change of its entries. The options
/// turn the slenderness that is given into the other one.
class CalcoloChi : public QGroupBox {
    Q_OBJECT
public:
    explicit CalcoloChi(QWidget* parent = nullptr);
    ~CalcoloChi() override;

    /// Shows the other slenderness, alpha, phi and chi. A ratio above 1 is put right with a message, once it
    /// has been typed.
    /// @param fy  yield strength [N/mm2]; until it is above 0 nothing is computed
    void Calcola(double fy);

    /// Takes over the curve of a section ("a0" to "d"), when it is another than last time.
    void ProponeCurva(const std::string& curva);

private:
    void CollegaDati();
    void CollegaRegole();
    void Ricalcola();
    void Converte(bool aRelativa);
    void CorreggeBetaA();
    void MostraSimboli(bool relativa);

    std::unique_ptr<Ui::CalcoloChi> ui_;
    RegoleEntrate regole_;
    QList<QLineEdit*> txtChi_; ///< slenderness, Aeff/A, then the results
    std::string proposta_;     ///< curve of the section
    double fy_ = 0;            ///< [N/mm2]
    bool correggendo_ = false; ///< the calculator rewrites its own box
};

} // namespace sagomi
