#pragma once

#include <QByteArray>
#include <QWidget>

namespace sagomi {

/// How two equal pieces make one section: chkDoppi, and, where it is ticked, fraDoppi with the side that is
/// put together, the gap txtDoppi and the note lblMsgDoppi.
class PannelloDoppi : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QByteArray schermo READ NomeSchermo WRITE ImpostaSchermo)
public:
    explicit PannelloDoppi(QWidget* parent = nullptr);

    /// Builds the controls for a main screen; to be set once.
    [[nodiscard]] QByteArray NomeSchermo() const { return schermo_; }
    void ImpostaSchermo(const QByteArray& nome);

private:
    QByteArray schermo_;
};

} // namespace sagomi
