#pragma once

#include <memory>
#include <utility>

namespace sagomi {

/// Shares an object that is made when it is first used; until then, or when it was taken away, empty.
template <typename T> class AlPrimoUso {
public:
    AlPrimoUso() = default;
    AlPrimoUso(std::shared_ptr<T> oggetto)
        : oggetto_(std::move(oggetto)) {} // NOLINT: conversion is the point

    /// The object, made where there is none.
    const std::shared_ptr<T>& Usa() {
        if (!oggetto_)
            oggetto_ = std::make_shared<T>();
        return oggetto_;
    }
    T& operator*() { return *Usa(); }
    T* operator->() { return Usa().get(); }
    operator const std::shared_ptr<T>&() { return Usa(); } // NOLINT: conversion is the point

    /// The object as it is, or null.
    [[nodiscard]] const std::shared_ptr<T>& Riferimento() const { return oggetto_; }
    explicit operator bool() const { return oggetto_ != nullptr; }
    void reset() { oggetto_.reset(); }

private:
    std::shared_ptr<T> oggetto_;
};

} // namespace sagomi
