#pragma once

#include <QByteArray>
#include <QMenuBar>

namespace sagomi {

/// The menus that all main screens have. An entry is found by its object name; those of screens stay disabled
/// until somebody connects them. "Tipo Sagomo" offers the other families, not the screen's own.
class MenuSezione : public QMenuBar {
    Q_OBJECT
    Q_PROPERTY(QByteArray schermo READ NomeSchermo WRITE ImpostaSchermo)
public:
    explicit MenuSezione(QWidget* parent = nullptr);

    /// Builds the menus of a main screen; to be set once.
    [[nodiscard]] QByteArray NomeSchermo() const { return schermo_; }
    void ImpostaSchermo(const QByteArray& nome);

private:
    QByteArray schermo_;
};

} // namespace sagomi
