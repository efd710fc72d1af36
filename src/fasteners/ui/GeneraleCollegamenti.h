#pragma once

class QComboBox;
class QLineEdit;
class QWidget;

namespace sagomi {

/// What the screens of connections have in common: the lists of bolts and the steel of the settings.

/// Fills a list with the bolt classes of the settings and selects the one in use; announces nothing.
void ComboClassiBulloniCarica(QComboBox* elenco);

/// The class that a list shows, as 8.8. A class is a name: it has a point in every locale.
double ClasseScelta(const QComboBox* elenco);

/// Fills a list with the diameters of the table of bolts and selects the first; announces nothing.
void ComboDiametriBulloniCarica(QComboBox* elenco);

/// Steps the steel in use, held inside its list.
void PassoAcciaioCorrente(bool su);

/// Shows name and ultimate strength of the steel in use.
void MostraAcciaioCorrente(QLineEdit* tipo, QLineEdit* fu);

/// Places a window where the screens of connections open for the first time.
void DisponeInAlto(QWidget* finestra);

} // namespace sagomi
