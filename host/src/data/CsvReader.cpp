#include <host/CsvReader.h>

#include <algorithm>
#include <exception>
#include <string>
#include <unordered_map>
#include <vector>

#include <csv.h>
#include <fmt/format.h>
#include <host/DataSet.h>
#include <unicode/ustring.h>

#include "data/DisplayFormat.h"
#include "data/File.h"
#include "data/Refusal.h"

namespace host {
namespace {

/// Refuses a text that is not valid UTF-8 or holds a NUL, and counts its lines.
std::size_t checkedLineEnds(std::string_view text) {
  const auto isPlain = [](char c) { return static_cast<unsigned char>(c) - 0x20U < 0x60U; };
  if (std::ranges::all_of(text, isPlain)) return 0;

  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, nullptr, text.data(), static_cast<std::int32_t>(text.size()), &status);
  if (status == U_INVALID_CHAR_FOUND) throw Refusal("not valid UTF-8");

  std::size_t lineEnds = 0;
  char previous = 0;
  for (const char c : text) {
    if (c == '\0') throw Refusal("a NUL character");
    if (c == '\r' || (c == '\n' && previous != '\r')) ++lineEnds;
    previous = c;
  }
  return lineEnds;
}

/// One CSV file on its way through the parser. Nothing may be thrown through the
/// parser: what a callback throws waits until the parser returns.
class CsvReader {
public:
  CsvReader(const std::filesystem::path& file, CsvConsumer& consumer)
      : file_(file), consumer_(consumer) {
    csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL);
    csv_set_space_func(&parser_, [](unsigned char) { return 0; });
    csv_set_blk_size(&parser_, 4096);
  }
  ~CsvReader() { csv_free(&parser_); }
  CsvReader(const CsvReader&) = delete;
  CsvReader& operator=(const CsvReader&) = delete;

  std::size_t read() {
    readFile(file_, [this](std::string_view piece) { parse(piece); });
    const bool closed = csv_fini(&parser_, onCell, onRowEnd, this) == 0;
    rethrow();
    if (!closed) fail("the quoted field is not closed");
    if (!headerRead_) throw DataError(fmt::format("{}: the file is empty", file_.native()));
    return rows_;
  }

private:
  void parse(std::string_view piece) {
    const std::size_t parsed =
        csv_parse(&parser_, piece.data(), piece.size(), onCell, onRowEnd, this);
    rethrow();
    if (csv_error(&parser_) == CSV_ENOMEM) throw std::bad_alloc();
    if (parsed < piece.size())
      fail("a quote must enclose the whole field and be doubled inside it");
    // The closing quote counts as long as the parser waits for what follows it.
    if (parser_.entry_pos > longestText + 1) failTooLong();
  }

  static void onCell(void* text, std::size_t length, void* self) {
    static_cast<CsvReader*>(self)->guard(
        [=](CsvReader& reader) { reader.takeCell({static_cast<const char*>(text), length}); });
  }
  static void onRowEnd(int terminator, void* self) {
    static_cast<CsvReader*>(self)->guard([=](CsvReader& reader) { reader.endLine(terminator); });
  }

  template <class Step> void guard(Step step) {
    if (failure_) return;
    try {
      step(*this);
    } catch (const Refusal& refusal) {
      failure_ = std::make_exception_ptr(DataError(at(refusal.what())));
    } catch (...) {
      failure_ = std::current_exception();
    }
  }
  void rethrow() {
    if (failure_) std::rethrow_exception(failure_);
  }

  void takeCell(std::string_view text) {
    if (text.size() > longestText) failTooLong();
    const std::size_t lineEnds = checkedLineEnds(text);
    if (headerRead_)
      takeValue(text);
    else
      takeName(text);
    line_ += lineEnds;
    terminator_ = 0;
    ++field_;
  }

  void takeName(std::string_view text) {
    if (field_ == mostColumns) throw Refusal(fmt::format("more than {} columns", mostColumns));
    if (text.empty()) throw Refusal("the column has no name");
    const auto [known, isNew] = columnOfName_.try_emplace(std::string(text), field_);
    if (!isNew)
      throw Refusal(fmt::format("the column name {} stands in field {} already", shown(text),
                                known->second + 1));
    names_.push_back(&known->first);
    consumer_.name(field_, text);
  }

  void takeValue(std::string_view text) {
    if (field_ == names_.size())
      throw Refusal(fmt::format("more fields than the header's {}", names_.size()));
    consumer_.cell(rows_, field_, text);
  }

  /// A line feed right after a carriage return ends no line of its own.
  void endLine(int terminator) {
    if (field_ > 0) endRow();
    if (terminator != CSV_LF || terminator_ != CSV_CR) ++line_;
    terminator_ = terminator;
  }

  void endRow() {
    if (!headerRead_) {
      consumer_.headerEnd(field_);
      headerRead_ = true;
    } else {
      if (field_ < names_.size())
        throw Refusal(fmt::format("the row ends after {} of {} fields", field_, names_.size()));
      ++rows_;
    }
    field_ = 0;
  }

  /// The message with the place of the field that comes next.
  std::string at(std::string_view reason) const {
    const std::string name = headerRead_ && field_ < names_.size()
                                 ? fmt::format("field {}: ", shown(*names_[field_]))
                                 : std::string();
    return fmt::format("{}:{}:{}: {}{}", file_.native(), line_, field_ + 1, name, reason);
  }
  [[noreturn]] void fail(std::string_view reason) const { throw DataError(at(reason)); }
  [[noreturn]] void failTooLong() const {
    fail(fmt::format("more than {} bytes in one field", longestText));
  }

  const std::filesystem::path& file_;
  CsvConsumer& consumer_;
  csv_parser parser_{};
  std::exception_ptr failure_;

  std::unordered_map<std::string, std::size_t> columnOfName_;
  std::vector<const std::string*> names_; ///< the keys of columnOfName_ by column
  bool headerRead_ = false;
  std::size_t rows_ = 0;
  std::size_t line_ = 1;  ///< where the next cell begins
  std::size_t field_ = 0; ///< the cells read of this row
  int terminator_ = 0;    ///< what ended the line before, 0 within a row
};

} // namespace

std::size_t readCsv(const std::filesystem::path& file, CsvConsumer& consumer) {
  return CsvReader(file, consumer).read();
}

} // namespace host
