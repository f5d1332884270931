#include "fonts/Woff.h"

#include <cstdint>

#include <zlib.h>

namespace render {
namespace {

// Of the font's own header and of its directory's entries.
constexpr std::size_t sfntHeader = 12;
constexpr std::size_t sfntEntry = 16;
constexpr std::size_t woffHeader = 44;
constexpr std::size_t woffEntry = 20;

std::uint32_t numberAt(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (const char byte : bytes.substr(at, size))
    number = number << 8U | static_cast<unsigned char>(byte);
  return number;
}

void append(std::string& bytes, std::size_t number, unsigned size) {
  for (unsigned shift = 8 * size; shift > 0; shift -= 8)
    bytes += static_cast<char>(number >> (shift - 8));
}

constexpr std::size_t padded(std::size_t size) { return (size + 3) / 4 * 4; }

/// A table that does not become smaller is kept as it is, which its size tells.
std::string compressed(std::string_view table) {
  uLongf size = compressBound(table.size());
  std::string bytes(size, '\0');
  const int status =
      compress2(reinterpret_cast<Bytef*>(bytes.data()), &size,
                reinterpret_cast<const Bytef*>(table.data()), table.size(), Z_BEST_COMPRESSION);
  if (status != Z_OK || size >= table.size()) return std::string(table);
  bytes.resize(size);
  return bytes;
}

} // namespace

std::string woff(std::string_view font) {
  const std::size_t count = numberAt(font, 4, 2);
  std::string entries;
  std::string tables;
  std::size_t fontSize = sfntHeader + count * sfntEntry;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string_view entry = font.substr(sfntHeader + i * sfntEntry, sfntEntry);
    const std::size_t size = numberAt(entry, 12, 4);
    const std::string table = compressed(font.substr(numberAt(entry, 8, 4), size));
    entries += entry.substr(0, 4);
    append(entries, woffHeader + count * woffEntry + tables.size(), 4);
    append(entries, table.size(), 4);
    append(entries, size, 4);
    entries += entry.substr(4, 4); // the table's checksum
    tables += table;
    tables.resize(padded(tables.size()));
    fontSize += padded(size);
  }

  std::string bytes = "wOFF";
  bytes += font.substr(0, 4); // of which kind the font is
  append(bytes, woffHeader + entries.size() + tables.size(), 4);
  append(bytes, count, 2);
  append(bytes, 0, 2);
  append(bytes, fontSize, 4);
  bytes.resize(woffHeader); // neither a version nor metadata nor private data
  return bytes + entries + tables;
}

} // namespace render
