#pragma once

#include <QList>
#include <QString>

#include <functional>

class QLineEdit;
class QWidget;

namespace sagomi {

/// A condition that entries have to meet before what hangs on them is shown.
struct RegolaEntrata {
    QList<QLineEdit*> caselle = {};       ///< the entries concerned; the first is the one that is marked
    std::function<QString()> motivo = {}; ///< why they cannot stand; empty when they can
    std::function<void()> corregge = {};  ///< tells so and mends them; empty where only a mark says it
    QList<QWidget*> risultati = {};       ///< labels and boxes that hang on them
    std::function<bool()> manca = {};     ///< they are not given yet, which nothing needs to say
};

/// The conditions of a screen's entries, which it holds whenever it computes: at the start by Applica, and,
/// once its results are written, by SvuotaRisultati.
class RegoleEntrate {
public:
    void Aggiunge(RegolaEntrata regola) { regole_.append(std::move(regola)); }

    /// Mends, each with its message, what is not being typed; marks what cannot be mended.
    /// @return whether all conditions are met
    bool Applica();

    /// Empties what hangs on conditions that were not met, verdicts too.
    void SvuotaRisultati() const;

    /// Whether the conditions of a box were met.
    [[nodiscard]] bool Sta(const QLineEdit* casella) const;

private:
    QList<RegolaEntrata> regole_;
    QList<bool> violate_; ///< rule i at the last Applica
};

/// Empties a label, its verdict's ground too, or a box.
void SvuotaRisultato(QWidget* risultato);

} // namespace sagomi
