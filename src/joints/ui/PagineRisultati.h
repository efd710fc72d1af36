#pragma once

#include <QWidget>

namespace sagomi {

/// The tab of the geometry that follows from the parameters.
class PaginaGeometria : public QWidget {
    Q_OBJECT
public:
    explicit PaginaGeometria(QWidget* parent = nullptr);
};

/// The tab of the resistances: components with their utilisation, rows, moment and shear, verdict. What
/// belongs to the component of a box is named after it: "LblNome" + box, "Bar" + box.
class PaginaResistenza : public QWidget {
    Q_OBJECT
public:
    explicit PaginaResistenza(QWidget* parent = nullptr);

    /// Shows the lines of one row of bolts, or of two; the room is that of two.
    void MostraFile(int nf);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

/// The tab of the stiffness: coefficients and corrections, secant stiffness, limits, classes.
class PaginaRigidezza : public QWidget {
    Q_OBJECT
public:
    explicit PaginaRigidezza(QWidget* parent = nullptr);

    /// Shows the line of the outer row, or hides it; its room stays.
    void MostraFile(int nf);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

} // namespace sagomi
