#pragma once

#include <QTextBrowser>
#include <QUrl>

namespace sagomi {

/// The text of the help. Its documents are the help files beside the program.
class TestoGuida : public QTextBrowser {
    Q_OBJECT
public:
    explicit TestoGuida(QWidget* parent = nullptr);

    /// The address of a place in a help file.
    [[nodiscard]] static QUrl Indirizzo(const QString& file, const QString& ancora);

    /// The text of a help file.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    /// With Ctrl the wheel sizes the text, within what can be read and laid out.
    void wheelEvent(QWheelEvent* event) override;

private:
    void Ingrandisci(int giro);
};

} // namespace sagomi
