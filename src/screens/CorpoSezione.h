#pragma once

#include <QByteArray>
#include <QWidget>

class QBoxLayout;

namespace sagomi {

/// What stands in the window of every main screen, in reading order: families, table, the picture of the row
/// in hand, its values, what the user types, what the program answers, the commands.
class CorpoSezione : public QWidget {
    Q_OBJECT
public:
    /// @param schermo  main screen whose families these are
    explicit CorpoSezione(QByteArray schermo, QWidget* parent = nullptr);

private:
    template <typename P> P* CreaPannello(const char* nome, QWidget* genitore);
    void PosaTabella(QBoxLayout& colonna);
    QWidget* CreaDisegno();
    QWidget* CreaValori();
    void PosaDestra(QBoxLayout& riga);
    void PosaComandi(QBoxLayout& colonna);

    QByteArray schermo_;
};

} // namespace sagomi
