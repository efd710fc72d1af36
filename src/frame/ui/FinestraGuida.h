#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

#include <cstddef>

#include "frame/ui/IndiceGuida.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;

namespace sagomi {

class TestoGuida;

/// The viewer of the help: the topics and the index of all help files at the left, which a box searches, the
/// text at the right, with a line to find words in it (Ctrl+F), back and forward (Alt+Left, Alt+Right).
class FinestraGuida : public QWidget {
    Q_OBJECT
public:
    FinestraGuida();

    /// Shows a file at a place; without a place its top.
    /// @param parole  words behind the place that are marked
    /// @param cella   the text of a cell that holds them; empty: the first of them
    void Mostra(const QString& file, const QString& ancora, const QString& parole = {},
                const QString& cella = {});

    /// Stands over a window that keeps all others from being used, and can be used with it. When the viewer
    /// is closed that window gets the focus back; when that one is closed the viewer stays as it is.
    void StaSopra(QWidget* modale);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    /// Esc closes the line of finding, then the window.
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* CreaComandi();
    QWidget* CreaIndice();
    QWidget* CreaTrova();
    void CollegaTasti();
    void Rilegge();
    void Riempie(QListWidget& lista, const QList<ArgomentoGuida>& argomenti);
    void Cerca();
    void ApreTrova();
    void Trova(bool avanti);

    TestoGuida* testo_ = nullptr;
    QLineEdit* cerca_ = nullptr;
    QTabWidget* schede_ = nullptr;
    QListWidget* listaArgomenti_ = nullptr;
    QListWidget* listaIndice_ = nullptr;
    QWidget* barraTrova_ = nullptr;
    QLineEdit* trova_ = nullptr;
    QLabel* esitoTrova_ = nullptr;
    std::size_t letti_ = 0; ///< hash of the help files that topics and index were made of
    RicercaGuida argomenti_;
    RicercaGuida indice_;
    QPointer<QWidget> sopra_; ///< the window that it stands over
};

} // namespace sagomi
