#include "kestotool/tool/ModuleFileCheck.h"

#include <elf.h>
#include <link.h>
#include <sys/stat.h>

#include <cstring>
#include <fstream>
#include <vector>

namespace KestoTool {

namespace {

// This build's own ELF flavour: the loader takes nothing else.
using Ehdr = ElfW(Ehdr);
using Phdr = ElfW(Phdr);
constexpr unsigned char kClass = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;
constexpr unsigned char kData = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__ ? ELFDATA2LSB : ELFDATA2MSB;

} // namespace

std::string ModuleFileCheck::Problem(const std::string& path)
{
    struct stat info {};
    if (stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode))
        return "it is not a readable file";
    if (info.st_mode & (S_IWGRP | S_IWOTH))
        return "others may write to it: make it writable by its owner only";
    const auto size = static_cast<std::uint64_t>(info.st_size);

    std::ifstream file(path, std::ios::binary);
    Ehdr header{};
    if (!file.read(reinterpret_cast<char*>(&header), sizeof header))
        return "it is shorter than an ELF header";
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_ident[EI_CLASS] != kClass ||
        header.e_ident[EI_DATA] != kData || header.e_type != ET_DYN || header.e_phentsize != sizeof(Phdr))
        return "it is not a shared object for this machine";
    const std::uint64_t tableEnd = header.e_phoff + static_cast<std::uint64_t>(header.e_phnum) * sizeof(Phdr);
    if (header.e_phnum == 0 || header.e_phoff > size || tableEnd > size)
        return "its program headers lie outside the file: it is truncated";

    std::vector<Phdr> segments(header.e_phnum);
    file.seekg(static_cast<std::streamoff>(header.e_phoff));
    if (!file.read(reinterpret_cast<char*>(segments.data()),
                   static_cast<std::streamsize>(segments.size() * sizeof(Phdr))))
        return "its program headers cannot be read";
    for (const Phdr& segment : segments) {
        if (segment.p_type == PT_LOAD && (segment.p_offset > size || segment.p_filesz > size - segment.p_offset))
            return "a loadable segment lies outside the file: it is truncated";
    }
    return {};
}

} // namespace KestoTool
