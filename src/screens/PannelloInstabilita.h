#pragma once

#include <QByteArray>
#include <QGroupBox>

#include <vector>

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

    /// Shows where the derivation about an axis starts and what it is for, and marks the axis of the least
    /// resistance of those shown, its heading and its resistance in bold; in tension, and where two are
    /// alike, there is none.
    /// @param asse  0 for the first axis
    /// @param i     radius of gyration [mm]
    /// @param N     axial force, compression positive [N]
    /// @param NbRd  buckling resistance [N]; no number where there is none
    void MostraAsse(int asse, double i, double N, double NbRd);

private:
    void MostraGoverna(double N);

    QByteArray assi_;
    std::vector<double> resistenze_; ///< of the axes [N]
};

} // namespace sagomi
