#pragma once

#include <memory>

namespace sagomi {

/// What an automation client is told of. It belongs to who made it.
class OsservatoreSezione {
public:
    OsservatoreSezione() = default;
    virtual ~OsservatoreSezione() = default;
    OsservatoreSezione(const OsservatoreSezione&) = delete;
    OsservatoreSezione& operator=(const OsservatoreSezione&) = delete;

    virtual void SagomoCambiato() = 0; ///< a new row has become the current section
    virtual void SagomiQuittato() = 0; ///< the program has closed

private:
    friend class RiferimentoOsservatore;
    std::shared_ptr<OsservatoreSezione*> vivo_ = std::make_shared<OsservatoreSezione*>(this);
};

/// Names an observer, as a pointer would; it and all of its copies are null as soon as the observer dies.
class RiferimentoOsservatore {
public:
    RiferimentoOsservatore(OsservatoreSezione* osservatore = nullptr) { // NOLINT: conversion is the point
        if (osservatore != nullptr)
            vivo_ = osservatore->vivo_;
    }
    operator OsservatoreSezione*() const { // NOLINT: conversion is the point
        const auto vivo = vivo_.lock();
        return vivo ? *vivo : nullptr;
    }
    OsservatoreSezione* operator->() const { return *this; }

private:
    std::weak_ptr<OsservatoreSezione*> vivo_;
};

} // namespace sagomi
