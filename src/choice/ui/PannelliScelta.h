#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QList>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "sections/DiagrammaMomenti.h"

class QLineEdit;

namespace sagomi {

class Casella;
class PulsanteDiagramma;

/// Forces of a choice: axial force, moments about both axes, the shape of their diagram.
class PannelloForze : public QGroupBox {
    Q_OBJECT
public:
    explicit PannelloForze(QWidget* parent = nullptr);

    Casella* TxtNsd;                    ///< [kN], compression positive
    std::array<Casella*, 2> M1, M2, MQ; ///< [kNm], 0 about y-y, 1 about z-z

    [[nodiscard]] std::int16_t Pict() const { return pict_; }
    /// Chooses a diagram, 1 to 6, without a signal.
    void ImpostaPict(std::int16_t pict);
    /// The moments of an axis [N mm]; the one in the span counts where the diagram has it.
    [[nodiscard]] MomentiMembratura Momenti(int asse) const;

signals:
    /// The user has chosen another diagram.
    void diagrammaScelto();

private:
    QWidget* CreaDiagrammi();
    void AbilitaCampata();

    QList<PulsanteDiagramma*> pulsanti_;
    std::int16_t pict_ = pictEstremitaConcordi;
};

/// The families to choose among, with a box for all of them.
class PannelloFamiglieScelta : public QGroupBox {
    Q_OBJECT
public:
    explicit PannelloFamiglieScelta(QWidget* parent = nullptr);

    /// Names of the sheets that are ticked, as sections call their families.
    [[nodiscard]] std::vector<std::string> Scelte() const;
    [[nodiscard]] bool Tutte() const;

signals:
    void cambiate();

private:
    void Posa(QCheckBox* spunta);
    void AggiungeSpunta(std::string_view foglio, const QString& scritta);
    void SpuntaTutte(bool spunta);
    void MostraTutte();

    QList<QCheckBox*> spunte_;
    std::vector<std::string> fogli_; ///< of each tick
    QCheckBox* tutte_ = nullptr;
};

/// Lengths and factors of the member, and what limits its size: two rooms by their tables.
QGroupBox* CreaMembratura(QWidget* parent);
QGroupBox* CreaLimiti(QWidget* parent);

} // namespace sagomi
