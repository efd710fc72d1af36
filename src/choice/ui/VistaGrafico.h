#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "choice/GraficoScelta.h"
#include "drawing/ui/ImmagineDisegno.h"

namespace sagomi {

/// The chart of a choice beside its table: a click on a mark chooses its section.
class VistaGrafico : public ImmagineDisegno {
    Q_OBJECT
public:
    explicit VistaGrafico(QWidget* parent = nullptr);

    void MostraDati(std::shared_ptr<const DatiGrafico> dati);
    [[nodiscard]] const DatiGrafico& Dati() const { return *dati_; }

    /// Where the mark of a point lies [px of the widget]; for who tests, or points at it.
    [[nodiscard]] QPointF DoveLaMarca(std::uint32_t punto) const;

    /// What the tip at a mark says.
    std::function<QString(std::uint32_t posto)> suggerimento;

signals:
    /// The mark of a row has been clicked.
    void scelto(quint32 posto);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] ScalaGrafico Scala() const;
    [[nodiscard]] double Riga() const;
    [[nodiscard]] std::optional<std::uint32_t> PuntoIn(const QPointF& dove) const;

    std::shared_ptr<const DatiGrafico> dati_ = std::make_shared<DatiGrafico>();
};

} // namespace sagomi
