#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "formats/ByteReader.h"

namespace kestrel::document {

// A journal begins with these bytes; then come its records. A record is the number of bytes of its
// content and their CRC-32, which begins with those of the number, each in 4 bytes, little-endian,
// and the content.
inline constexpr std::string_view kJournalHead = "KestrelJournal1\n";
// A journal with longer records is damaged.
inline constexpr std::size_t kLongestRecord = std::size_t{1} << 20;

// Longer ones are not written. They are rewritten long before.
inline constexpr std::size_t kMostJournalBytes = std::size_t{256} << 20;

// Also one whose writing ended within the head.
bool IsJournal(formats::Bytes bytes);
std::vector<std::uint8_t> EmptyJournal();
// Puts a record at the end, unless it has no content.
void PutRecord(std::vector<std::uint8_t>& journal, formats::Bytes content);

// The records of a journal in their order, up to the first that is torn or damaged.
class JournalReader {
  public:
    explicit JournalReader(formats::Bytes journal);

    // The content of the next record; nothing where there is none that is whole.
    std::optional<formats::Bytes> Next();

  private:
    formats::ByteReader journal_;
    std::uint64_t at_;
};

}  // namespace kestrel::document
