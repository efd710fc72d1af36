#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "frame/ui/NavigaSchermi.h"

namespace sagomi::prove {

/// A control by its object name; a wrong name lists nothing and stops the test.
template <typename T> T* Trova(const QObject* screen, const char* name) {
    auto* control = screen->findChild<T*>(QString::fromLatin1(name));
    if (control == nullptr)
        throw std::runtime_error(std::string("no control of that kind is called ") + name);
    return control;
}

inline std::string Testo(const QObject* screen, const char* name) {
    return Trova<QLineEdit>(screen, name)->text().toStdString();
}

/// A text of the screens written with point and comma, in the separators of the locale that the test runs in.
inline std::string Locale(std::string text) {
    std::string result;
    for (const char c : text)
        result += c == '.'   ? Utf8DaCodice(CarDecimale)
                  : c == ',' ? Utf8DaCodice(CarMigliaia)
                             : std::string(1, c);
    return result;
}

/// The program's folder in a temporary place, with the real help; the settings at their start; every message
/// heard.
class AmbienteFinestre : public testing::Test {
protected:
    void SetUp() override {
        RipristinaGenerale();
        PathProgramma = cartella.path().toStdString();
        CopiaAccanto("Sagomi.hlp");
    }

    void TearDown() override {
        NavigaSchermi::Unico().ScaricaTutti();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        RipristinaGenerale();
    }

    /// A file that the build has put beside the program.
    static void CopiaAccanto(const char* file) {
        const std::filesystem::path copy = PathProgramma / file;
        std::filesystem::copy_file(std::filesystem::path(SAGOMI_BIN) / file, copy);
        std::filesystem::permissions(copy, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
    }

    QTemporaryDir cartella;
    Registratore registratore;
};

} // namespace sagomi::prove
