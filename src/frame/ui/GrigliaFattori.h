#pragma once

#include <QByteArray>
#include <QWidget>

class QGridLayout;
class QLabel;
class QPushButton;

namespace sagomi {

/// A table of factors as the code of rules prints it: the diagrams at the left, then a row of numbers for
/// each case. A press on the first factor, a button, takes the row. The properties build the table in the
/// order in which they are set: heads, factors, rows.
class GrigliaFattori : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString testa READ Testa WRITE ImpostaTesta)
    Q_PROPERTY(QByteArray fattori READ Fattori WRITE ImpostaFattori)
    Q_PROPERTY(int righe READ Righe WRITE ImpostaRighe)
public:
    explicit GrigliaFattori(QWidget* parent = nullptr);

    /// Head over the diagrams; with it the names of the factors stand over their columns.
    [[nodiscard]] QString Testa() const { return testa_; }
    void ImpostaTesta(const QString& testo);

    /// Factors by their symbols, blanks between: "k C1 C3". The label of factor X in row i is "lblX_i".
    [[nodiscard]] QByteArray Fattori() const { return fattori_.join(' '); }
    void ImpostaFattori(const QByteArray& fattori);

    [[nodiscard]] int Righe() const { return righe_; }
    void ImpostaRighe(int righe);

    /// Puts the diagrams of all rows in their place.
    void PosaDiagrammi(QWidget* diagrammi);

    [[nodiscard]] QGridLayout* Griglia() const { return griglia_; }
    /// Button of a row.
    [[nodiscard]] QPushButton* Bottone(int riga) const;

private:
    void PosaTeste();
    void PosaRiga(int riga);

    QGridLayout* griglia_;
    QString testa_;
    QList<QByteArray> fattori_;
    int righe_ = 0;
};

} // namespace sagomi
