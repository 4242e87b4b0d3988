#pragma once

#include <cstdint>
#include <string>

#include "document/IconDocument.h"
#include "editing/Mouse.h"
#include "editing/PackedPicture.h"
#include "formats/ByteWriter.h"

namespace kestrel::editing {

// The two ways between values and the bytes of a record: what is put by one is taken by the other,
// so one function states the layout of a value for both. Integers are little-endian.

class RecordPutter {
  public:
    explicit RecordPutter(formats::ByteWriter& out) : out_(out) {}

    template <class Value>
    void Number(const Value& value, int bytes) {
        auto rest = static_cast<std::uint64_t>(value);
        for (int i = 0; i < bytes; ++i, rest >>= 8)
            out_.U8(rest & 0xFF);
    }
    void Color(gdi::COLORREF color) { Number(color, 3); }
    // In grid units, which are 16-bit values.
    void Coordinate(int v) { out_.U16(static_cast<std::uint16_t>(v)); }
    void Text(const std::string& text);
    void Difference(const PictureDifference& difference);
    void Planes(const gdi::IconPlanes& planes);
    void Require(bool /*sense*/) {}

  private:
    formats::ByteWriter& out_;
};

// What is not there reads as 0; afterwards the bytes are known to be none of ours.
class RecordTaker {
  public:
    explicit RecordTaker(formats::Bytes bytes) : bytes_(bytes) {}

    // False once something was missing or senseless.
    bool IsSound() const { return sound_; }
    bool AtEnd() const { return at_ == bytes_.Size(); }
    void Require(bool sense) { sound_ = sound_ && sense; }

    template <class Value>
    void Number(Value& value, unsigned bytes) {
        std::uint64_t number = 0;
        const formats::Bytes part = Part(bytes);
        for (std::size_t i = 0; i < part.size(); ++i)
            number |= std::uint64_t{part[i]} << 8 * i;
        value = static_cast<Value>(number);
    }
    void Color(gdi::COLORREF& color) { Number(color, 3); }
    void Coordinate(int& v);
    void Text(std::string& text);
    void Difference(PictureDifference& difference);
    // Of 1 to 32 pixels along each side.
    void Planes(gdi::IconPlanes& planes);

  private:
    formats::Bytes Part(std::uint64_t count);

    formats::ByteReader bytes_;
    std::uint64_t at_ = 0;
    bool sound_ = true;
};

}  // namespace kestrel::editing
