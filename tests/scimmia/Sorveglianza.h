#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>
#include <deque>
#include <thread>

namespace sagomi::prove {

/// Watches a run: warnings of the toolkit, boxes that say nothing or show the words of an exception, a
/// program that does not come back. What it hears is printed with the events that led there.
class Sorveglianza : public QObject {
public:
    Sorveglianza();
    ~Sorveglianza() override;
    Sorveglianza(const Sorveglianza&) = delete;
    Sorveglianza& operator=(const Sorveglianza&) = delete;

    /// The next event, in words.
    void Annota(int numero, const QString& evento);
    /// Something is wrong.
    void Trova(const QString& cosa);
    /// The same where there is no going on.
    [[noreturn]] void Abbandona(const QString& cosa);
    [[nodiscard]] int Trovati() const { return trovati_; }

    /// Looks at each box as it comes up.
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void Guarda(const std::stop_token& fine);

    std::deque<QString> ultimi_;
    int trovati_ = 0;
    std::atomic<int> passo_{0};
    std::jthread guardia_;
};

/// Objects of the toolkit that are alive.
std::size_t OggettiVivi();

} // namespace sagomi::prove
