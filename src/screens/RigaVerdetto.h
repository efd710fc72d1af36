#pragma once

#include <QWidget>

class QLabel;

namespace sagomi {

struct Verdetto;

/// What stands beside a verdict: the utilisation in per cent with the term that governs ("LblUtilizzo"), and
/// the reason where the sum shown does not tell it ("LblMotivo").
class RigaVerdetto : public QWidget {
    Q_OBJECT
public:
    explicit RigaVerdetto(QWidget* parent = nullptr);

    /// A verdict without a number leaves both empty.
    void Mostra(const Verdetto& verdetto);

private:
    QLabel* utilizzo_;
    QLabel* motivo_;
};

} // namespace sagomi
