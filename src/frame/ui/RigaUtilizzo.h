#pragma once

#include <QWidget>

class QLabel;

namespace sagomi {

/// What stands beside a verdict: the utilisation in per cent with what governs it ("LblUtilizzo"), and the
/// reason where the sum shown does not tell it ("LblMotivo").
class RigaUtilizzo : public QWidget {
    Q_OBJECT
public:
    explicit RigaUtilizzo(QWidget* parent = nullptr);

    /// @param utilizzo what is held against 1; no number leaves it empty
    /// @param governa  the largest term; empty where nothing acts
    void Mostra(double utilizzo, const QString& governa, const QString& motivo);

    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    QLabel* utilizzo_;
    QLabel* motivo_;
};

} // namespace sagomi
