#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maximum);

namespace corvane::fuzz {

/// Changes an input behind the bytes by which its format is recognised; a picture without them
/// would be none of that format.
inline std::size_t mutatedBehind(std::string_view signature, std::uint8_t *data, std::size_t size,
                                 std::size_t maximum)
{
    if (maximum < signature.size())
        return 0;
    std::copy(signature.begin(), signature.end(), data);
    const std::size_t rest = std::max(size, signature.size()) - signature.size();
    return signature.size()
        + LLVMFuzzerMutate(data + signature.size(), rest, maximum - signature.size());
}

inline bool begins(const std::uint8_t *data, std::size_t size, std::string_view signature)
{
    return std::string_view(reinterpret_cast<const char *>(data), size).starts_with(signature);
}

} // namespace corvane::fuzz
