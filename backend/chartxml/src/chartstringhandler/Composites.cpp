#include <chartxml/ChartStringHandler.h>

#include <fmt/format.h>
#include <host/Text.h>

int ChartStringHandler::CompositeString(const std::string& pattern) {
  return addComposite(OmStringCell(pattern, 0, 0));
}

int ChartStringHandler::CompositeString(const std::string& pattern,
                                        const std::string& englishPattern) {
  OmStringCell cell(pattern, 0, 0);
  cell.OriginalValue(englishPattern);
  return addComposite(cell);
}

int ChartStringHandler::addComposite(const OmStringCell& pattern) {
  composites_.emplace(nextHandle_, std::make_unique<OmComposite>(pattern, nullptr, true));
  return nextHandle_++;
}

OmComposite* ChartStringHandler::getComposite(int handle, std::source_location where) const {
  const auto found = composites_.find(handle);
  if (found != composites_.end()) return found->second.get();
  report(fmt::format("composite string not found {}", handle), where);
  return nullptr;
}

// A handle without a composite is reported twice: by the look-up and by the
// operation that needed it.
template <class Operation> bool ChartStringHandler::changeComposite(int handle, const char* failure,
                                                                    std::source_location where,
                                                                    Operation operation) {
  OmComposite* composite = getComposite(handle, where);
  if (!composite) {
    report(fmt::format("composite string not found {}", handle), where);
    return false;
  }
  try {
    operation(*composite);
    return true;
  } catch (const KorvaGoToCaller&) {
    throw;
  } catch (...) {
    report(failure, where);
    return false;
  }
}

int ChartStringHandler::AddParameter(int composite, int parameter) {
  const auto here = std::source_location::current();
  if (!validString(composite, "composite") || !validString(parameter, "parameter")) return -1;
  const bool added =
      changeComposite(composite, "add parameter failed", here, [&](OmComposite& target) {
        const ChartString& text = getXMLString(parameter);
        OmStringCell cell(text.toUTF8(), 0, 1);
        cell.OriginalValue(text.toUTF8ForEng());
        target.Add(cell);
      });
  return added ? 0 : -1;
}

int ChartStringHandler::BeginRepeat(int composite) {
  const auto here = std::source_location::current();
  if (!validString(composite, "pattern")) return -1;
  const bool begun = changeComposite(composite, "begin repeat list failed", here,
                                     [](OmComposite& target) { target.BeginRepeatList(); });
  return begun ? 0 : -1;
}

int ChartStringHandler::EndRepeat(int composite) {
  const auto here = std::source_location::current();
  if (!validString(composite, "pattern")) return -1;
  const bool ended = changeComposite(composite, "end repeat list failed", here,
                                     [](OmComposite& target) { target.EndRepeatList(); });
  return ended ? 0 : -1;
}

int ChartStringHandler::EndCompositeString(int composite) {
  const auto here = std::source_location::current();
  if (!validString(composite, "pattern")) return -1;
  const bool ended =
      changeComposite(composite, "end composite string failed", here, [](OmComposite& target) {
        target.End();
        target.Substitute(nullptr, true);
      });
  return ended ? composite : -1;
}

// Only the display text is carried over: a style name is the same in every
// language.
int ChartStringHandler::StyleString(int string, int index) {
  if (!validString(string, "string")) return -1;
  if (index < 0) {
    report(fmt::format("negative handles are not allowed {}", index),
           std::source_location::current());
    return -1;
  }
  std::u16string name = getXMLString(string).text();
  name += _underscore;
  host::appendUtf16(name, asString(index));
  return AddChartString(ChartString(std::move(name)));
}
