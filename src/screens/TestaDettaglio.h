#pragma once

#include <QGroupBox>

#include <memory>

namespace Ui {
class TestaDettaglio;
}

namespace sagomi {

class Casella;
class UpDown;

/// Head of a detail screen: section, steel and fy of the caller, with the buttons that step its row and its
/// steel, then the code of rules in force with its factors. The name and the steel are read only; fy can be
/// typed where the screen says so.
class TestaDettaglio : public QGroupBox {
    Q_OBJECT
    Q_PROPERTY(bool fyModificabile READ FyModificabile WRITE ImpostaFyModificabile)
public:
    explicit TestaDettaglio(QWidget* parent = nullptr);
    ~TestaDettaglio() override;

    [[nodiscard]] bool FyModificabile() const;
    void ImpostaFyModificabile(bool modificabile);

    /// Shows the code of rules in force and its partial factors.
    void MostraNormativa();

    Casella* Txt_Prof;        ///< designation
    UpDown* UpDown1;          ///< steps the row
    Casella* Txt_TipoAcciaio; ///< steel grade
    UpDown* UpDown2;          ///< steps the steel
    Casella* Txt_fy;          ///< yield strength [N/mm2]

private:
    std::unique_ptr<Ui::TestaDettaglio> ui_;
};

} // namespace sagomi
