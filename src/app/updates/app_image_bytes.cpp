#include "app/updates/app_image_bytes.h"

#include <array>
#include <cstring>
#include <string_view>

namespace corvane::app_image_bytes {

namespace {

/// The beginning of an ELF header, as far as it is looked at.
constexpr std::size_t headBytes = 20;

/// `e_machine` and the class of ELF, by the name of the architecture.
struct Machine {
    std::u16string_view name;
    unsigned char bits;
    unsigned int number;
};
constexpr unsigned char bits32 = 1;
constexpr unsigned char bits64 = 2;
constexpr std::array machines{Machine{u"x86_64", bits64, 62}, Machine{u"arm64", bits64, 183},
                              Machine{u"riscv64", bits64, 243}, Machine{u"i386", bits32, 3},
                              Machine{u"arm", bits32, 40}};

bool isForMachine(std::span<const unsigned char> head, const QString &architecture)
{
    constexpr std::size_t classAt = 4;
    constexpr std::size_t orderAt = 5;
    constexpr std::size_t machineAt = 18;
    constexpr unsigned char littleEndian = 1;
    constexpr unsigned int byte = 256;
    if (head[orderAt] != littleEndian)
        return false;
    const unsigned int number = head[machineAt] + byte * head[machineAt + 1];
    for (const Machine &machine : machines) {
        if (QStringView(machine.name) == architecture)
            return machine.bits == head[classAt] && machine.number == number;
    }
    return false;
}

} // namespace

QByteArray mark(const QString &application)
{
    return "\napplication-id=" + application.toUtf8() + '\n';
}

bool isOf(std::span<const unsigned char> bytes, const QString &application,
          const QString &architecture)
{
    constexpr std::string_view elf("\x7f"
                                   "ELF");
    constexpr std::size_t markAt = 8;
    if (bytes.size() < headBytes || std::memcmp(bytes.data(), elf.data(), elf.size()) != 0)
        return false;
    const bool isAppImage = bytes[markAt] == 'A' && bytes[markAt + 1] == 'I'
        && (bytes[markAt + 2] == 1 || bytes[markAt + 2] == 2);
    const QByteArray wanted = mark(application);
    return isAppImage && isForMachine(bytes, architecture)
        && ::memmem(bytes.data(), bytes.size(), wanted.constData(),
                    static_cast<std::size_t>(wanted.size()))
        != nullptr;
}

} // namespace corvane::app_image_bytes
