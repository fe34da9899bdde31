#pragma once
// Libraries that few runs need: loaded at first use, so that no other run pays for them at its start.
#include <string>

namespace qlpipe {

/// A shared library, to be held with the functions that are used of it:
///
///     struct ZipLibrary {
///         LateLibrary library{"libzip.so.4", "libzip4"};
///         decltype(&::zip_open) open = library["zip_open"];
///         decltype(&::zip_close) close = library["zip_close"];
///     };
///     const ZipLibrary& zip() {
///         static const ZipLibrary loaded;
///         return loaded;
///     }
///
/// The header gives each function its type, and nothing is linked. The library stays loaded to the end of the process:
/// libraries that keep state of their own don't survive being unloaded.
class LateLibrary {
public:
    /// Throws TransferError 20001 when the library is not there; `package` is what installs it.
    LateLibrary(const char* fileName, const char* package);

    /// A function's address, taken by a pointer of the right type.
    class Symbol {
    public:
        explicit Symbol(void* address) : address_(address) {}
        template <class Function>
        operator Function*() const {
            return reinterpret_cast<Function*>(address_);
        }

    private:
        void* address_;
    };

    /// Throws TransferError 20001 for a function that the installed version lacks.
    Symbol operator[](const char* function) const;

private:
    std::string fileName_, package_;
    void* library_;
};

} // namespace qlpipe
