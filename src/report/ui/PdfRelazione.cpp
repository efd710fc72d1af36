#include "report/ui/PdfRelazione.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include <array>
#include <optional>
#include <stdexcept>

#include "frame/FileAtomico.h"
#include "frame/MotivoFile.h"
#include "report/Relazione.h"
#include "report/ScritturaPdf.h"
#include "report/ui/PagineRelazione.h"

namespace sagomi {

namespace {

constexpr int risoluzione = 1200;

void DipingeTutte(QPagedPaintDevice& carta, QPainter& pittore, const Relazione& relazione) {
    const PagineRelazione pages(relazione, carta);
    for (int i = 0; i < pages.Numero(); ++i) {
        if (i > 0)
            carta.newPage();
        pages.Dipinge(pittore, i);
    }
}

QByteArray InPdf(const Relazione& relazione) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setResolution(risoluzione);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    writer.setTitle(QString::fromStdString(relazione.titolo + ": " + relazione.oggetto));
    writer.setCreator(QString::fromStdString(ProgrammaRelazione()));
    QPainter painter(&writer);
    DipingeTutte(writer, painter, relazione);
    painter.end();
    return bytes.data();
}

/// While one lives there is an application, without a display where the program has none.
class ConApplicazione {
public:
    ConApplicazione() {
        if (QCoreApplication::instance() != nullptr)
            return;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        propria_.emplace(argc_, argv_.data());
    }

private:
    std::array<char, 7> nome_{"sagomi"};
    std::array<char*, 2> argv_{nome_.data(), nullptr};
    int argc_ = 1;
    std::optional<QGuiApplication> propria_;
};

} // namespace

void ScrivePdfRelazione(const Relazione& relazione, const std::filesystem::path& file) {
    const QByteArray bytes = InPdf(relazione);
    if (!ScriveAtomico(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())}))
        throw std::runtime_error(AvvisoNonScritto(file));
}

void ImpostaPdfRelazione() {
    ImpostaScritturaPdf([](const Relazione& relazione, const std::filesystem::path& file) {
        const ConApplicazione application;
        ScrivePdfRelazione(relazione, file);
    });
}

bool StampaRelazioneSu(QPrinter& stampante, const Relazione& relazione) {
    stampante.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&stampante))
        return false;
    DipingeTutte(stampante, painter, relazione);
    return painter.end();
}

} // namespace sagomi
