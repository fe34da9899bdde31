#pragma once
// Shared libraries that are loaded at first use, because few runs need them.
#include <string>

namespace qlpipe {

/// A shared library. Use it as a member before the functions that are looked up in it:
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
/// The library's header provides the types; nothing is linked. The library is never unloaded, because libraries with
/// global state do not support that.
class LateLibrary {
public:
    /// Throws TransferError 20001 if the library is not installed. `package` is the package to install.
    LateLibrary(const char* fileName, const char* package);

    /// The address of a function; converts to a function pointer of any type.
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

    /// Throws TransferError 20001 if the installed version does not have the function.
    Symbol operator[](const char* function) const;

private:
    std::string fileName_, package_;
    void* library_;
};

} // namespace qlpipe
