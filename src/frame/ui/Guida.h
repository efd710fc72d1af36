#pragma once

#include <QObject>

namespace sagomi {

/// The built-in help viewer. F1 anywhere in the program opens the help file of the active screen at the
/// control in hand, over a dialog or a box as well: of a message at its cause and remedy. Files lie beside
/// the program and are matched without regard to letter case.
class Guida : public QObject {
    Q_OBJECT
public:
    /// Takes F1 over for the whole application.
    static void Installa();

    /// Opens a help file at a topic; an unknown topic shows the top. A missing file gives one box with its
    /// name.
    static void Apre(const QString& file, const QString& argomento = {});

    /// The help file in force, set by each screen that becomes active.
    static void ImpostaFile(const QString& file);
    [[nodiscard]] static QString File();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace sagomi
