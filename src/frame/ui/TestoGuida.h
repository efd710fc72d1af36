#pragma once

#include <QImage>
#include <QTextBrowser>
#include <QUrl>

#include <functional>

namespace sagomi {

/// The text of the help. Its documents are the help files beside the program.
class TestoGuida : public QTextBrowser {
    Q_OBJECT
public:
    explicit TestoGuida(QWidget* parent = nullptr);

    /// The address of a place in a help file.
    [[nodiscard]] static QUrl Indirizzo(const QString& file, const QString& ancora);

    /// Draws the pictures of the help, <img src="figura:NAME">, by their names; an empty one leaves its place
    /// empty.
    inline static std::function<QImage(const QString& nome)> figura;

    /// The text of a help file, or a picture in it.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    /// With Ctrl the wheel sizes the text, within what can be read and laid out.
    void wheelEvent(QWheelEvent* event) override;

private:
    void Ingrandisce(int giro);
};

} // namespace sagomi
