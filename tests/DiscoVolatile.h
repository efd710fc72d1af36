#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/Disco.h"

namespace sagomi::prove {

/// A disk in memory that writes down what it is asked for and can tell all that it may hold when the power
/// fails: of what no flush has put down, each write is there, half there, as zeros or not at all, and any of
/// the changes of names has been made, in any order.
class DiscoVolatile : public Disco {
public:
    enum class Passo { Crea, Scrive, Svuota, Chiude, Rinomina, SvuotaCartella, Toglie };
    struct Voce {
        Passo passo;
        int nodo = 0;              ///< the file that it is about
        std::string nome, altro{}; ///< a name that appears or goes; the new name
        std::string byte{};
    };
    using Contenuti = std::map<std::string, std::string>; ///< by name, without the folder

    DiscoVolatile() { CollegaDisco(this); }
    ~DiscoVolatile() override { CollegaDisco(nullptr); }

    int CreaTemporaneo(std::string& modello) override {
        modello.replace(modello.size() - 6, 6, std::to_string(100000 + nodi_));
        return Registra({Passo::Crea, ++nodi_, Nome(modello)}) ? nodi_ : -1;
    }
    void Permette(int /*fd*/, mode_t /*diritti*/) override {}
    bool Scrive(int fd, std::string_view byte) override {
        const std::size_t meta = byte.size() / 2; // what comes in two steps may be cut between them
        return Registra({Passo::Scrive, fd, {}, {}, std::string(byte.substr(0, meta))}) &&
               Registra({Passo::Scrive, fd, {}, {}, std::string(byte.substr(meta))});
    }
    bool Svuota(int fd) override { return Registra({Passo::Svuota, fd, {}}); }
    bool Chiude(int fd) override { return Registra({Passo::Chiude, fd, {}}); }
    bool Rinomina(const std::string& da, const std::filesystem::path& a) override {
        return Registra({Passo::Rinomina, NodoDi(Nome(da)), Nome(da), Nome(a)});
    }
    void SvuotaCartella(const std::filesystem::path& /*cartella*/) override {
        Registra({Passo::SvuotaCartella, 0, {}});
    }
    void Toglie(const std::string& file) override { Registra({Passo::Toglie, 0, Nome(file)}); }

    /// The step of that number, counted from 0, fails.
    void Guasta(std::optional<std::size_t> passo) { guasto_ = passo; }
    /// Steps of that kind are said to be done and are not: for a test of the tests.
    void Mente(Passo passo) { bugia_ = passo; }

    [[nodiscard]] const std::vector<Voce>& Diario() const { return diario_; }

    /// All that the disk may hold when the power fails after so many steps.
    void OgniStato(std::size_t passi, const std::function<void(const Contenuti&)>& vede) const {
        std::vector<const Voce*> nomi, scritture;
        Contenuti byte;
        std::map<std::string, int> cartella;
        for (std::size_t i = 0; i < passi; ++i)
            Distribuisce(i, passi, cartella, nomi);
        OgniOrdine(nomi, cartella,
                   [&](const std::map<std::string, int>& nomi_fatti) { OgniByte(passi, nomi_fatti, vede); });
    }

private:
    static std::string Nome(const std::filesystem::path& p) { return p.filename().string(); }

    bool Registra(Voce voce) {
        const bool fallisce = guasto_ == contati_++;
        if (fallisce && voce.passo != Passo::Scrive)
            return false;
        if (voce.passo != bugia_)
            diario_.push_back(std::move(voce)); // of a write that fails a part may be there
        return !fallisce;
    }

    [[nodiscard]] int NodoDi(const std::string& nome) const {
        int nodo = 0;
        for (const Voce& v : diario_)
            if (v.passo == Passo::Crea && v.nome == nome)
                nodo = v.nodo;
        return nodo;
    }

    [[nodiscard]] bool Seguito(std::size_t i, std::size_t passi, Passo passo, int nodo) const {
        for (; i < passi; ++i)
            if (diario_[i].passo == passo && diario_[i].nodo == nodo)
                return true;
        return false;
    }

    static void Applica(const Voce& v, std::map<std::string, int>& cartella) {
        if (v.passo != Passo::Crea)
            cartella.erase(v.nome);
        if (v.passo == Passo::Crea)
            cartella[v.nome] = v.nodo;
        if (v.passo == Passo::Rinomina)
            cartella[v.altro] = v.nodo;
    }

    /// A change of names that a flush has put down is made; any other one is pending.
    void Distribuisce(std::size_t i, std::size_t passi, std::map<std::string, int>& cartella,
                      std::vector<const Voce*>& sospese) const {
        const Voce& v = diario_[i];
        if (v.passo != Passo::Crea && v.passo != Passo::Rinomina && v.passo != Passo::Toglie)
            return;
        if (Seguito(i, passi, Passo::SvuotaCartella, 0))
            Applica(v, cartella);
        else
            sospese.push_back(&v);
    }

    /// Any of the pending changes, in any order.
    static void OgniOrdine(std::vector<const Voce*>& sospese, const std::map<std::string, int>& cartella,
                           const std::function<void(const std::map<std::string, int>&)>& vede) {
        vede(cartella);
        for (std::size_t i = 0; i < sospese.size(); ++i) {
            auto poi = cartella;
            Applica(*sospese[i], poi);
            auto altre = sospese;
            altre.erase(altre.begin() + static_cast<std::ptrdiff_t>(i));
            OgniOrdine(altre, poi, vede);
        }
    }

    /// What a file may hold: one text for each way in which its pending writes have come down.
    [[nodiscard]] std::vector<std::string> OgniTesto(int nodo, std::size_t passi) const {
        std::vector<std::string> testi{""};
        std::size_t dove = 0;
        for (std::size_t i = 0; i < passi; ++i) {
            const Voce& v = diario_[i];
            if (v.passo != Passo::Scrive || v.nodo != nodo)
                continue;
            std::vector<std::string> poi;
            for (const std::string& t : testi)
                for (const std::string& pezzo :
                     Seguito(i, passi, Passo::Svuota, nodo) ? std::vector{v.byte} : Pezzi(v.byte))
                    poi.push_back(Messo(t, dove, pezzo));
            dove += v.byte.size();
            testi = std::move(poi);
        }
        return testi;
    }
    static std::vector<std::string> Pezzi(const std::string& byte) {
        return {byte, byte.substr(0, byte.size() / 2), std::string(byte.size(), '\0'), {}};
    }
    static std::string Messo(std::string testo, std::size_t dove, const std::string& pezzo) {
        if (pezzo.empty())
            return testo;
        testo.resize(std::max(testo.size(), dove + pezzo.size()), '\0');
        return testo.replace(dove, pezzo.size(), pezzo);
    }

    void OgniByte(std::size_t passi, const std::map<std::string, int>& cartella,
                  const std::function<void(const Contenuti&)>& vede) const {
        std::vector<Contenuti> stati{{}};
        for (const auto& [nome, nodo] : cartella) {
            if (nome.starts_with('.'))
                continue; // what is left of a save is nobody's file
            std::vector<Contenuti> poi;
            for (const Contenuti& stato : stati)
                for (const std::string& testo : OgniTesto(nodo, passi)) {
                    poi.push_back(stato);
                    poi.back()[nome] = testo;
                }
            stati = std::move(poi);
        }
        for (const Contenuti& stato : stati)
            vede(stato);
    }

    std::vector<Voce> diario_;
    std::optional<std::size_t> guasto_;
    std::optional<Passo> bugia_;
    std::size_t contati_ = 0;
    int nodi_ = 0;
};

} // namespace sagomi::prove
