// Little-endian loads from a byte buffer. The caller has checked that the bytes are there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace mLittleEndian {

inline uint16_t LoadU16(std::string_view bytes, std::size_t at) {
    return static_cast<uint16_t>(static_cast<unsigned char>(bytes[at]) |
                                 static_cast<unsigned char>(bytes[at + 1]) << 8);
}

inline uint32_t LoadU32(std::string_view bytes, std::size_t at) {
    return static_cast<uint32_t>(LoadU16(bytes, at)) | static_cast<uint32_t>(LoadU16(bytes, at + 2)) << 16;
}

}  // namespace mLittleEndian
