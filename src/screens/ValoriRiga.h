#pragma once

#include <QByteArray>

#include "frame/ui/GruppoVoci.h"

namespace sagomi {

/// The values of the row in hand, under the headings of the screen's families: TxtProf_1 and so on. The
/// designation, TxtProf_0, stands with the drawing.
class ValoriRiga : public GruppoVoci {
    Q_OBJECT
    Q_PROPERTY(QByteArray schermo READ NomeSchermo WRITE ImpostaSchermo)
public:
    explicit ValoriRiga(QWidget* parent = nullptr);

    /// Builds the boxes for the families of a main screen; to be set once.
    [[nodiscard]] QByteArray NomeSchermo() const { return schermo_; }
    void ImpostaSchermo(const QByteArray& nome);

private:
    QByteArray schermo_;
};

} // namespace sagomi
