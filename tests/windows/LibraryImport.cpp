#include "windows/LibraryImport.h"

#include "windows/LibraryCall.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace satwecvt {

namespace {

template <typename T>
T* At(HMODULE module, std::size_t offset)
{
    return reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(module) + offset);
}

}  // namespace

ULONG_PTR& ImportEntry(const char* function)
{
    const HMODULE module = Library();
    const auto* const dos = At<IMAGE_DOS_HEADER>(module, 0);
    const auto* const header = At<IMAGE_NT_HEADERS>(module, static_cast<std::size_t>(dos->e_lfanew));
    const auto& directory = header->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (const auto* import = At<IMAGE_IMPORT_DESCRIPTOR>(module, directory.VirtualAddress); import->Name != 0;
         ++import) {
        const auto* named = At<IMAGE_THUNK_DATA>(module, import->OriginalFirstThunk);
        auto* address = At<IMAGE_THUNK_DATA>(module, import->FirstThunk);
        for (; named->u1.AddressOfData != 0; ++named, ++address) {
            const auto* const entry =
                At<IMAGE_IMPORT_BY_NAME>(module, static_cast<std::size_t>(named->u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<const char*>(entry->Name), function) == 0) {
                return address->u1.Function;
            }
        }
    }
    std::fprintf(stderr, "satwecvt.dll does not import %s\n", function);
    std::exit(70);
}

void SetImportEntry(ULONG_PTR& entry, ULONG_PTR address)
{
    DWORD protection = 0;
    ::VirtualProtect(&entry, sizeof(entry), PAGE_READWRITE, &protection);
    entry = address;
    ::VirtualProtect(&entry, sizeof(entry), protection, &protection);
}

}  // namespace satwecvt
