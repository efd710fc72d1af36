#pragma once

#include <QAbstractTableModel>

#include <cstdint>
#include <span>
#include <vector>

#include "catalogue/ui/FonteRighe.h"
#include "catalogue/ui/NomiPiegati.h"
#include "choice/SceltaInCorso.h"
#include "choice/TabellaScelta.h"

namespace sagomi {

/// The rows of a choice as a table model, in an order of its own. Nothing is formatted before it is asked
/// for; rows that are not computed yet show their names alone.
class ModelloScelta : public QAbstractTableModel, public FonteRighe {
    Q_OBJECT
public:
    /// Values that delegates ask for.
    enum Ruolo : int {
        ruoloUtilizzo = Qt::UserRole, ///< double, no number without a verdict
        ruoloVerificato               ///< bool
    };

    explicit ModelloScelta(const SceltaInCorso& scelta, QObject* parent = nullptr);

    /// Shows these rows, in this order; the section in hand stays in hand where it is among them, and the
    /// first is where the user has chosen none.
    /// @param leggeri  those that are marked as the lightest of their families
    void Mostra(std::vector<std::uint32_t> posti, std::vector<std::uint32_t> leggeri);
    /// None is marked as the lightest of its family.
    void SvuotaLeggeri() { leggeri_.clear(); }
    /// The values of some rows, or all, have changed.
    void Rinnova(int da, int a);

    [[nodiscard]] std::span<const std::uint32_t> Posti() const { return posti_; }
    [[nodiscard]] std::span<const std::uint32_t> Leggeri() const { return leggeri_; }
    /// The place of the row in hand; false where there is none.
    [[nodiscard]] bool InMano(std::uint32_t& posto) const;
    /// Takes the row of a place in hand, as the user does.
    /// @return whether it is shown
    bool VaiA(std::uint32_t posto);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] QAbstractTableModel* Modello() override { return this; }
    [[nodiscard]] QString TestoIntero(int riga, int colonna) const override;
    [[nodiscard]] const std::vector<QStringList>& TestiLunghi() const override;
    [[nodiscard]] int CercaIniziale(const QString& testo) const override;
    [[nodiscard]] int RigaInMano() const override { return inMano_; }
    void MoveTo(int riga) override;

signals:
    /// Another row is in hand.
    void rigaInMano();

private:
    [[nodiscard]] QVariant Testo(std::uint32_t posto, int colonna) const;
    [[nodiscard]] QVariant Suggerimento(std::uint32_t posto, int colonna) const;
    [[nodiscard]] bool Leggero(std::uint32_t posto) const;
    void CambiaNumero(int righe);

    const SceltaInCorso& scelta_;
    std::vector<std::uint32_t> posti_;
    std::vector<std::uint32_t> leggeri_; ///< sorted
    int inMano_ = -1;
    bool dellUtente_ = false;  ///< the row in hand is the user's, not just the first
    mutable NomiPiegati nomi_; ///< made when somebody types
};

} // namespace sagomi
