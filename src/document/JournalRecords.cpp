#include "document/JournalRecords.h"

#include <zlib.h>

#include <algorithm>
#include <array>

namespace kestrel::document {

namespace {

constexpr std::size_t kRecordHead = 8;

using Number = std::array<std::uint8_t, 4>;

Number NumberOf(std::uint64_t value) {
    Number bytes{};
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(value);
        value >>= 8;
    }
    return bytes;
}

std::uint32_t SumOf(formats::Bytes content) {
    const Number length = NumberOf(content.size());
    return static_cast<std::uint32_t>(
        crc32_z(crc32_z(0, length.data(), length.size()), content.data(), content.size()));
}

}  // namespace

bool IsJournal(formats::Bytes bytes) {
    return std::ranges::equal(bytes.first(std::min(bytes.size(), kJournalHead.size())),
                              kJournalHead.substr(0, bytes.size()),
                              [](std::uint8_t byte, char letter) { return byte == letter; });
}

std::vector<std::uint8_t> EmptyJournal() {
    return {kJournalHead.begin(), kJournalHead.end()};
}

void PutRecord(std::vector<std::uint8_t>& journal, formats::Bytes content) {
    if (content.empty()) return;
    for (const std::uint64_t number :
         {std::uint64_t{content.size()}, std::uint64_t{SumOf(content)}})
        for (const std::uint8_t byte : NumberOf(number))
            journal.push_back(byte);
    journal.insert(journal.end(), content.begin(), content.end());
}

JournalReader::JournalReader(formats::Bytes journal)
    : journal_(journal), at_(IsJournal(journal) ? kJournalHead.size() : journal.size()) {}

std::optional<formats::Bytes> JournalReader::Next() {
    const std::uint32_t length = journal_.U32(at_);
    if (length == 0 || length > kLongestRecord || !journal_.Has(at_, kRecordHead + length))
        return std::nullopt;
    const formats::Bytes content = journal_.Part(at_ + kRecordHead, length);
    if (journal_.U32(at_ + 4) != SumOf(content)) return std::nullopt;
    at_ += kRecordHead + length;
    return content;
}

}  // namespace kestrel::document
