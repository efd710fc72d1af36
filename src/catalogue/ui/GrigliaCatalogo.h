#pragma once

#include <QElapsedTimer>
#include <QTableView>

#include <map>

namespace sagomi {

class LettoreDati;

/// The table of sections: the row in hand follows the reader and leads it, typing goes to the first
/// designation that begins so, Ctrl+C copies the selected rows with their headings.
class GrigliaCatalogo : public QTableView {
    Q_OBJECT
public:
    explicit GrigliaCatalogo(QWidget* parent = nullptr);

    void Collega(LettoreDati* lettore);

    /// Gives the columns their widths and number pictures.
    /// @param count number of fields of the query, less one
    void FormatoGriglia(int count);

    /// Scales column widths, row and header heights; the ratios are to the sizes at the first scaling.
    void Scala(double larghezza, double altezza);

    /// First row whose designation begins with the text, blanks and case ignored; -1 if none does.
    [[nodiscard]] int CercaIniziale(const QString& testo) const;

    /// The selected rows as tab-separated lines under a line of headings.
    [[nodiscard]] QString RigheSelezionate() const;

    [[nodiscard]] QSize sizeHint() const override { return {400, Altezza(9)}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {200, Altezza(4)}; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& search) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void Tasto(QKeyEvent* event);
    void SegueLettore();
    [[nodiscard]] int Altezza(int rows) const;
    void AdattaColonne();
    [[nodiscard]] int LarghezzaColonna(int column, const QStringList& texts) const;

    LettoreDati* lettore_ = nullptr;
    std::map<QString, int> larghezzeScelte_; ///< by heading, as the user drew them
    double scalaLarghezza_ = 1;
    double scalaAltezza_ = 1;
    int altezzaRiga_ = 0;
    bool seguendo_ = false;
    bool adattando_ = false;
    QString digitato_;
    QElapsedTimer ultimoTasto_;
};

} // namespace sagomi
