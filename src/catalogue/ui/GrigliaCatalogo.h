#pragma once

#include <QElapsedTimer>
#include <QFont>
#include <QHash>
#include <QTableView>

#include <map>
#include <optional>
#include <vector>

namespace sagomi {

class ColonnaFerma;
class EtichettaRicerca;
class FonteRighe;
class LettoreDati;

/// Widths of texts [px], each asked of the text engine once a font.
class LarghezzeMisurate {
public:
    int Di(const QFont& font, const QString& testo);

private:
    std::optional<QFont> font_;
    QHash<QString, int> note_;
};

/// The table of sections: the row in hand follows the reader and leads it and is always selected, typing goes
/// to the first designation that begins so, Ctrl+C copies the selected rows with their headings, a click on a
/// heading asks for its order. Rows are shown whole; the first column stays where the others scroll.
class GrigliaCatalogo : public QTableView {
    Q_OBJECT
public:
    explicit GrigliaCatalogo(QWidget* parent = nullptr);

    void Collega(LettoreDati* lettore);
    /// Rows of another kind; who has them tells by SegueRiga that another one is in hand.
    void Collega(FonteRighe* fonte);

    /// Gives the columns of a reader their widths and number pictures.
    /// @param count number of fields of the query, less one
    void FormatoGriglia(int count);

    /// Gives the columns their widths.
    void AdattaColonne();

    /// Goes to the row in hand.
    void SegueRiga();

    /// Scales column widths, row and header heights; the ratios are to the sizes at the first scaling.
    void Scala(double larghezza, double altezza);

    /// Width at which all columns are in sight, beside the bar of the rows.
    [[nodiscard]] int LarghezzaIntera() const;

    /// The largest height, up to one given, that ends with a whole row.
    [[nodiscard]] int AltezzaIntera(int altezza) const;

    /// Whether the columns share a spare width among them.
    void ImpostaRiempie(bool riempie) { riempie_ = riempie; }

    /// Column widths that the user has drawn, by heading, at the sizes of the start.
    [[nodiscard]] std::map<QString, int> LarghezzeScelte() const;
    void RiprendeLarghezze(std::map<QString, int> larghezze);

    /// First row whose designation begins with the text, blanks and case ignored; -1 if none does.
    [[nodiscard]] int CercaIniziale(const QString& testo) const;

    /// Letters typed elsewhere, to search as if they had been typed here.
    void Digita(const QString& testo) { keyboardSearch(testo); }

    /// Marks the column that the rows are sorted by, given by its heading; an unknown one marks none.
    void MostraOrdine(const QString& intestazione, Qt::SortOrder verso = Qt::AscendingOrder);

    /// The selected rows, that in hand always among them, as tab-separated lines under a line of headings.
    [[nodiscard]] QString RigheSelezionate() const;
    /// Puts them on the clipboard, as text and as a table.
    void Copia();

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

    [[nodiscard]] QSize sizeHint() const override { return {400, Altezza(9)}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {200, Altezza(4)}; }

signals:
    /// The heading of a column has been clicked.
    void ordineChiesto(int colonna);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void updateGeometries() override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& search) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void CollegaIntestazioni(QHeaderView* intestazioni);
    void Tasto(QKeyEvent* event);
    bool Scorre(int tasto);
    void Cerca(const QString& testo);
    [[nodiscard]] bool InRicerca() const;
    void DipingeScelte();
    [[nodiscard]] int Altezza(int rows) const;
    void RipartisceColonne();
    bool ImpostaLarghezze();
    void LasciaRigheIntere();
    void FinisceConUnaRigaIntera();
    [[nodiscard]] std::vector<int> LarghezzeCedute(int eccesso) const;
    [[nodiscard]] std::vector<int> LarghezzePrese(int spazio) const;
    [[nodiscard]] bool Disegnata(std::size_t colonna) const;
    [[nodiscard]] int LarghezzaColonna(int column, const QStringList& texts) const;

    FonteRighe* fonte_ = nullptr;
    LettoreDati* lettore_ = nullptr; ///< the same, where the rows are those of a reader
    ColonnaFerma* ferma_ = nullptr;
    EtichettaRicerca* ricerca_ = nullptr;
    std::map<QString, int> larghezzeScelte_; ///< by heading, as the user drew them
    std::vector<int> larghezzePiene_;        ///< of the columns, where there is room
    mutable LarghezzeMisurate larghezzeTesti_;
    mutable LarghezzeMisurate larghezzeTitoli_;
    double scalaLarghezza_ = 1;
    double scalaAltezza_ = 1;
    int altezzaRiga_ = 0;
    bool riempie_ = false;
    bool seguendo_ = false;
    bool adattando_ = false;
    bool misurando_ = false;
    bool ripartite_ = false; ///< columns have other widths than when the table was last laid out
    QString digitato_;
    QElapsedTimer ultimoTasto_;
};

} // namespace sagomi
