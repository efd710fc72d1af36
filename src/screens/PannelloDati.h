#pragma once

#include <QByteArray>
#include <QGroupBox>

class QGridLayout;

namespace sagomi {

struct Voce;

/// The entries of a main screen: steel, strengths, buckling lengths, axial force, and the hidden helper box
/// of the separator check.
class PannelloDati : public QGroupBox {
    Q_OBJECT
    Q_PROPERTY(QByteArray schermo READ NomeSchermo WRITE ImpostaSchermo)
public:
    explicit PannelloDati(QWidget* parent = nullptr);

    /// Builds the entries of a main screen; to be set once.
    [[nodiscard]] QByteArray NomeSchermo() const { return schermo_; }
    void ImpostaSchermo(const QByteArray& nome);

private:
    void PosaAcciaio();
    void PosaNascosto();

    QByteArray schermo_;
    QGridLayout* griglia_;
};

} // namespace sagomi
