#pragma once

#include <QByteArray>
#include <QWidget>

#include <string>

class QPushButton;

namespace sagomi {

struct FamigliaSchermo;

/// What the table of a main screen lists: a box for each family, the sort keys, the button that reads anew.
class PannelloFamiglie : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QByteArray schermo READ NomeSchermo WRITE ImpostaSchermo)
public:
    explicit PannelloFamiglie(QWidget* parent = nullptr);

    /// Builds the controls for the families of a main screen; to be set once.
    [[nodiscard]] QByteArray NomeSchermo() const { return schermo_; }
    void ImpostaSchermo(const QByteArray& nome);

    /// Shows on the button which ticks are not yet in the table.
    /// @param query  what the table lists
    void MostraDifferenze(const std::string& query);

private:
    QWidget* CreaFamiglie(const FamigliaSchermo& famiglia);
    QWidget* CreaOrdini(const FamigliaSchermo& famiglia);

    QPushButton* aggiorna_ = nullptr;
    QByteArray schermo_;
};

} // namespace sagomi
