#pragma once

namespace tavmoor {

/// The one implementation of an interface that the program uses: the platform's, or, for as long
/// as a ScopedService lives, another one. Tests answer dialogs, boxes and process starts so.
template <typename Interface>
class ServiceSlot {
public:
    /// The replacement, or null while there is none.
    static Interface* Replacement() noexcept { return replacement_; }

private:
    template <typename>
    friend class ScopedService;
    static inline Interface* replacement_ = nullptr;
};

/// Puts a replacement into the slot of its interface; the older one comes back at the end.
template <typename Interface>
class ScopedService {
public:
    explicit ScopedService(Interface& replacement) noexcept
        : before_(ServiceSlot<Interface>::replacement_) {
        ServiceSlot<Interface>::replacement_ = &replacement;
    }
    ScopedService(const ScopedService&) = delete;
    ScopedService& operator=(const ScopedService&) = delete;
    ~ScopedService() { ServiceSlot<Interface>::replacement_ = before_; }

private:
    Interface* before_;
};

} // namespace tavmoor
