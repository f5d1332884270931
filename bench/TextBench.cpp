// What a text costs: registered, translated, composed and formatted, against the
// least that a library could do.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <unicode/localpointer.h>
#include <unicode/ures.h>

#include <chartxml/ChartXml.h>
#include <chartxml/EntryPoints.h>
#include <host/Formatter.h>
#include <host/StringTables.h>

namespace {

constexpr std::int64_t zero = 0;
constexpr int batch = 10000;

/// Runs `makeText` in batches and forgets the texts in between.
template <class MakeText> void registerTexts(benchmark::State& state, MakeText makeText) {
  for (auto _ : state) {
    for (int i = 0; i < batch; ++i)
      makeText();
    state.PauseTiming();
    ChartXml::GetInstance()->ResetStrings();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * batch);
}

std::int64_t registered(std::string_view text) {
  const auto length = static_cast<std::int64_t>(text.size());
  return cx_nstringnotranslate_(&zero, text.data(), &length);
}

// A text kept under a handle

constexpr std::string_view label = "Flipper length (mm)";

void textsRegistered(benchmark::State& state) {
  registerTexts(state, [] { registered(label); });
}

void textsCopied(benchmark::State& state) {
  const std::u16string text(label.begin(), label.end());
  for (auto _ : state) {
    std::vector<std::u16string> copies;
    copies.reserve(batch);
    for (int i = 0; i < batch; ++i)
      copies.push_back(text);
    state.PauseTiming();
    copies = {};
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * batch);
}

// A key translated

constexpr std::string_view key = "E60557";

void keysTranslated(benchmark::State& state) {
  const auto length = static_cast<std::int64_t>(key.size());
  registerTexts(state, [&] { cx_nstring_(&zero, key.data(), &length); });
}

void keysLookedUpInBundle(benchmark::State& state) {
  constexpr int stringTables = 3;
  const std::string folder =
      PathFactory::getPathInstance(stringTables).stringTablePath() + "/global";
  UErrorCode status = U_ZERO_ERROR;
  const icu::LocalUResourceBundlePointer bundle(ures_openDirect(folder.c_str(), "root", &status));
  if (U_FAILURE(status)) throw std::runtime_error("no string tables in " + folder);
  for (auto _ : state) {
    std::int32_t length = 0;
    benchmark::DoNotOptimize(ures_getStringByKey(bundle.getAlias(), key.data(), &length, &status));
  }
  state.SetItemsProcessed(state.iterations());
}

// A composite of four parameters

constexpr std::string_view pattern = "^1 of ^2 in ^3 by ^4";
constexpr std::array<std::string_view, 4> parameters = {"Body mass", "Adélie penguins", "2008",
                                                        "island"};

void compositesComposed(benchmark::State& state) {
  const auto length = static_cast<std::int64_t>(pattern.size());
  std::array<std::int64_t, 4> handles{};
  int left = 0;
  registerTexts(state, [&] {
    // The parameters are registered once for many composites, as procedures do.
    if (left-- == 0) {
      std::ranges::transform(parameters, handles.begin(), registered);
      left = batch - 1;
    }
    std::int64_t composite = cx_compositestring_(&zero, pattern.data(), &length);
    for (const std::int64_t handle : handles)
      cx_addparameter_(&zero, &composite, &handle);
    cx_endcompositestring_(&zero, &composite);
  });
}

void composedByFmt(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(fmt::format(fmt::runtime("{} of {} in {} by {}"), parameters[0],
                                         parameters[1], parameters[2], parameters[3]));
  }
  state.SetItemsProcessed(state.iterations());
}

// A number formatted

constexpr std::array<double, 4> numbers = {3.14159, -1234567.891, 0.5, 98765.4321};

void numbersFormatted(benchmark::State& state) {
  constexpr int general = 5;
  const KORVA_Format format(general, 12, 2);
  for (auto _ : state) {
    for (const double number : numbers)
      benchmark::DoNotOptimize(formatter::formattedValue(number, format));
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(numbers.size()));
}

void numbersToChars(benchmark::State& state) {
  std::array<char, 64> text{};
  for (auto _ : state) {
    for (const double number : numbers) {
      benchmark::DoNotOptimize(std::to_chars(text.data(), text.data() + text.size(), number,
                                             std::chars_format::fixed, 2));
    }
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(numbers.size()));
}

BENCHMARK(textsCopied)->Name("text/copy");
BENCHMARK(textsRegistered)->Name("text/entry");
BENCHMARK(keysLookedUpInBundle)->Name("key/bundle");
BENCHMARK(keysTranslated)->Name("key/entry");
BENCHMARK(composedByFmt)->Name("composite/fmt");
BENCHMARK(compositesComposed)->Name("composite/entry");
BENCHMARK(numbersToChars)->Name("number/to_chars");
BENCHMARK(numbersFormatted)->Name("number/formatter");

} // namespace
