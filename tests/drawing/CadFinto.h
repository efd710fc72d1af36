#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "drawing/Cad.h"
#include "frame/FileDati.h"

namespace sagomi::prove {

/// A CAD program that writes down every call, in one list for all its objects.
class CadFinto {
public:
    using Registro = std::vector<std::string>;

    /// @param nome  the one name that the program answers to; empty for none
    explicit CadFinto(std::string nome) : nome_(std::move(nome)) {
        precedente_ = CollegaCad([this](std::string_view cercato) -> std::shared_ptr<ApplicazioneCad> {
            cercati.emplace_back(cercato);
            return cercato == nome_ ? std::make_shared<Applicazione>(chiamate) : nullptr;
        });
    }
    ~CadFinto() {
        CadLascia();
        CollegaCad(precedente_);
    }
    CadFinto(const CadFinto&) = delete;
    CadFinto& operator=(const CadFinto&) = delete;

    std::vector<std::string> cercati;
    std::shared_ptr<Registro> chiamate = std::make_shared<Registro>();

    /// A block of the document, which calls itself by that name.
    [[nodiscard]] std::shared_ptr<ContenitoreCad> Blocco(const std::string& nome) const {
        return std::make_shared<Contenitore>(chiamate, nome);
    }

private:
    using Comune = std::shared_ptr<Registro>;

    static std::string Punto(const PuntoCad& p) {
        return "(" + NumeroFile(p[0]) + " " + NumeroFile(p[1]) + " " + NumeroFile(p[2]) + ")";
    }

    struct Entita : EntitaCad {
        explicit Entita(Comune r) : registro(std::move(r)) {}
        void Color(std::int16_t colore) override {
            registro->push_back("Color " + NumeroFile(double(colore)));
        }
        Comune registro;
    };

    struct Contenitore : ContenitoreCad {
        Contenitore(Comune r, std::string n) : registro(std::move(r)), nome(std::move(n)) {}
        std::shared_ptr<EntitaCad> Nuova(const std::string& chiamata) {
            registro->push_back(nome + "." + chiamata);
            return std::make_shared<Entita>(registro);
        }
        std::shared_ptr<EntitaCad> AddLine(const PuntoCad& a, const PuntoCad& b) override {
            return Nuova("AddLine " + Punto(a) + " " + Punto(b));
        }
        std::shared_ptr<EntitaCad> AddCircle(const PuntoCad& centro, double raggio) override {
            return Nuova("AddCircle " + Punto(centro) + " " + NumeroFile(raggio));
        }
        std::shared_ptr<EntitaCad> AddLightWeightPolyline(const std::vector<double>& coordinate) override {
            std::string chiamata = "AddLightWeightPolyline";
            for (const double v : coordinate)
                chiamata += " " + NumeroFile(v);
            return Nuova(chiamata);
        }
        std::shared_ptr<EntitaCad> AddText(std::string_view testo, const PuntoCad& punto,
                                           double altezza) override {
            return Nuova("AddText " + std::string(testo) + " " + Punto(punto) + " " + NumeroFile(altezza));
        }
        Comune registro;
        std::string nome;
    };

    struct Documento : DocumentoCad {
        explicit Documento(Comune r) : registro(std::move(r)) {}
        std::shared_ptr<ContenitoreCad> ModelSpace() override {
            registro->push_back("ModelSpace");
            return std::make_shared<Contenitore>(registro, "ModelSpace");
        }
        Comune registro;
    };

    struct Applicazione : ApplicazioneCad {
        explicit Applicazione(Comune r) : registro(std::move(r)) {}
        void Visible(bool visibile) override {
            registro->push_back(visibile ? "Visible True" : "Visible False");
        }
        std::shared_ptr<DocumentoCad> ActiveDocument() override {
            registro->push_back("ActiveDocument");
            return std::make_shared<Documento>(registro);
        }
        void ZoomExtents() override { registro->push_back("ZoomExtents"); }
        void Attiva() override { registro->push_back("Attiva"); }
        Comune registro;
    };

    std::string nome_;
    TrovaCad precedente_;
};

} // namespace sagomi::prove
