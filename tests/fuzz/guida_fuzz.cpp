// The bytes are a help file, from its second line on; the first one is what a user looks for in it.

#include <cstdint>

#include <QByteArray>
#include <QGuiApplication>

#include "frame/ui/IndiceGuida.h"

using namespace sagomi;

namespace {

void Applicazione() {
    static int argc = 1;
    static char nome[] = "fuzz_guida";
    static char* argv[] = {nome, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication applicazione(argc, argv);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Applicazione();
    const QByteArray byte(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const qsizetype riga = byte.indexOf('\n');
    const QString parole = QString::fromUtf8(byte.left(riga));
    const QString html = QString::fromUtf8(byte.mid(riga + 1));
    const QString file = QStringLiteral("Sagomi.hlp");
    CercaGuida(ArgomentiGuida(file, html), parole);
    IndiceGuida(file, html);
    (void)AncoraDi(html, parole);
    return 0;
}
