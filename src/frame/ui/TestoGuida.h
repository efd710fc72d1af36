#pragma once

#include <QHash>
#include <QImage>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#include <functional>

namespace sagomi {

/// The text of the help. Its documents are the help files beside the program; its pictures are no wider than
/// the page, whose width they follow a moment later.
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
    void resizeEvent(QResizeEvent* event) override;
    /// With Ctrl the wheel sizes the text, within what can be read and laid out.
    void wheelEvent(QWheelEvent* event) override;

private:
    void Ingrandisce(int giro);
    QImage Figura(const QUrl& name);
    void AdattaFigure();

    QHash<QUrl, double> larghezze_; ///< of the pictures of the text, as they are drawn [px]
    int posto_ = 0;                 ///< the width that they were given at most [px]
    QTimer adatta_;
};

} // namespace sagomi
