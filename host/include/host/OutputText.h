#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// A text of the output: UTF-8 for display, with its English text beside it.
class OmCellText {
public:
  virtual ~OmCellText() = default;
  virtual std::string Text() const = 0;
  virtual std::string EnglishText() const = 0;
};

/// A plain text; its original value is the English text.
class OmStringCell : public OmCellText {
public:
  OmStringCell(std::string text, int, int) : text_(std::move(text)) {}

  void OriginalValue(std::string english) { english_ = std::move(english); }

  std::string Text() const override { return text_; }
  std::string EnglishText() const override { return english_; }

private:
  std::string text_;
  std::string english_;
};

/// A text assembled from a pattern and parameters. In a pattern
///
///   ^n       is the n-th parameter, counted from 1 without those in repeat lists;
///   [A:B:]n  is the n-th repeat list: A with "%k" shows its first group, B with
///            "^k" each later one, k being the k-th parameter of the group; groups
///            are as long as the highest k in A and B;
///   \        takes the next character literally.
///
/// A parameter or list that was not given shows nothing; a "[" that begins no
/// repeat list is shown as it is. The English text is assembled in parallel from
/// the English pattern and parameters, each of which is the display text when
/// there is no English one.
class OmComposite : public OmCellText {
public:
  /// Takes pattern and original value from `pattern`; the region is unused.
  OmComposite(const OmStringCell& pattern, void* region, bool);
  ~OmComposite() override;

  /// The calls below throw ChartException, and change nothing, when they come out
  /// of order: a parameter after End, a repeat list in a repeat list or left open.

  /// Adds a copy of the parameter's texts, to the repeat list when one is open.
  void Add(const OmCellText& parameter);
  void BeginRepeatList();
  void EndRepeatList();
  void End();
  /// Assembles the texts for good; needs End. Refused when the pattern and what it
  /// shows come to more than 64 MiB: the composite is open again then. The parse tree and the flag
  /// are unused.
  void Substitute(const void* parseTree, bool);

  /// The assembled text; before Substitute, what the composite has so far, or
  /// nothing when that is more than Substitute takes.
  std::string Text() const override;
  std::string EnglishText() const override;

private:
  struct State;
  std::unique_ptr<State> state_;
};

/// A cell of the output system, by handle.
class SkString {
public:
  SkString(std::string bytes, int) : bytes_(std::move(bytes)) {}
  const std::string& bytes() const { return bytes_; }

private:
  std::string bytes_;
};

class SkCellText {
public:
  /// Keeps a copy of the text in the output system and returns its cell handle,
  /// from 0 upward.
  static int Replicate(const SkString& text);
  /// The bytes behind a cell handle, valid until the process ends; empty when
  /// there are none.
  static std::string_view text(int handle);
};

enum class SkErrorShow : int {};
enum class SkErrorLevel : int {};

/// Puts an entry into the output's error list, which the gallery shows. The two
/// values are the engine's and mean nothing here. An entry that the output cannot
/// take is reported, with the reason, as an error.
void SkError(const SkString& text, SkErrorShow show, SkErrorLevel level);
