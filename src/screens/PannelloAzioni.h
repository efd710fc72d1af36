#pragma once

#include <QGroupBox>

#include <memory>

namespace Ui {
class PannelloAzioni;
}

namespace sagomi {

class Casella;

/// The design actions that a check asks for: axial force and the moments about both axes.
class PannelloAzioni : public QGroupBox {
    Q_OBJECT
public:
    explicit PannelloAzioni(QWidget* parent = nullptr);
    ~PannelloAzioni() override;

    Casella* TxtNsd;  ///< axial force [kN], compression positive
    Casella* TxtMysd; ///< moment about y-y [kNm]
    Casella* TxtMzsd; ///< moment about z-z [kNm]

private:
    std::unique_ptr<Ui::PannelloAzioni> ui_;
};

} // namespace sagomi
