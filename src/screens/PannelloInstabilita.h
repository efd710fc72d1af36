#pragma once

#include <QByteArray>
#include <QGroupBox>

namespace sagomi {

/// How the buckling resistances come about, EC3 6.3.1: what both axes share, then the derivation for each
/// axis.
class PannelloInstabilita : public QGroupBox {
    Q_OBJECT
    Q_PROPERTY(QByteArray assi READ Assi WRITE ImpostaAssi)
public:
    explicit PannelloInstabilita(QWidget* parent = nullptr);

    /// Axes of the columns, blanks between: "y-y z-z"; to be set once.
    [[nodiscard]] QByteArray Assi() const { return assi_; }
    void ImpostaAssi(const QByteArray& assi);

    /// Shows epsilon and lamda1.
    /// @param fy  yield strength [N/mm2]
    void MostraAcciaio(double fy);

private:
    QByteArray assi_;
};

} // namespace sagomi
