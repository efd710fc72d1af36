#pragma once

#include <QWidget>

namespace sagomi {

class EtichettaRisultato;

/// Head of the screens of connections: the code of rules and the factor in force.
class TestaNormativa : public QWidget {
    Q_OBJECT
public:
    explicit TestaNormativa(QWidget* parent = nullptr);

    /// Shows them as they are now.
    void Mostra();

private:
    EtichettaRisultato* Lbl_Normativa_;
    EtichettaRisultato* Lbl_GammaM2_;
};

} // namespace sagomi
