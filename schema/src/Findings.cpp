#include "Findings.h"

#include <array>
#include <utility>

#include <fmt/format.h>
#include <host/Text.h>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/Attributes.hpp>

namespace schema {
namespace {

using xercesc::Attributes;

constexpr std::string_view unknownHere = "does not belong here";
constexpr std::string_view textHere = "text is not allowed here";

// The parser prints whole content models, and speaks of its own mechanisms.
struct Rewording {
  std::string_view from;
  std::string_view to;
};
constexpr std::array<Rewording, 7> rewordings{{
    {" is not allowed for content model", " is not allowed at its place"},
    {"missing elements in content model", "a child is missing"},
    {"not enough elements to match content model", "a child is missing"},
    {"empty content is not valid for content model", "a child is missing"},
    {"no declaration found for element", unknownHere},
    {"no character data is allowed by content model", textHere},
    {"element 'graph' declares duplicate identity constraint", "its id is another node's, too"},
}};

std::string reworded(std::string text) {
  for (const Rewording& rewording : rewordings) {
    const std::size_t at = text.find(rewording.from);
    if (at != text.npos) return text.replace(at, text.npos, rewording.to);
  }
  return text;
}

// Deeper than any chart is drawn; the parser's time grows with the square of it.
constexpr std::size_t deepestNesting = 1000;

// The parser says that a reference names nothing, not which.
constexpr std::string_view missingReference = "identity constraint key for element";
constexpr std::array<const XMLCh*, 4> referring{u"variable", u"style", u"styleCycle", u"cellStyle"};

template <class Place> std::string placeOf(const Place& place) {
  return fmt::format("{}:{}", place.getLineNumber(), place.getColumnNumber());
}

} // namespace

void Findings::startElement(const XMLCh*, const XMLCh*, const XMLCh* name,
                            const Attributes& attributes) {
  open_.push_back(host::utf8(name));
  flush();
  noteNames(attributes);
  if (open_.size() <= deepestNesting) return;
  note(placeOf(*locator_), fmt::format("elements are nested more than {} deep", deepestNesting));
  throw EndOfReading();
}

void Findings::endElement(const XMLCh*, const XMLCh*, const XMLCh*) {
  flush();
  open_.pop_back();
  if (open_.empty() && referenceMissing_) addMissingReferences();
}

// However deep an element stands, its path stays short.
std::string Findings::path() const {
  constexpr std::size_t shown = 8;
  if (open_.size() <= shown) return fmt::format("{}", fmt::join(open_, "/"));
  return fmt::format(".../{}", fmt::join(open_.end() - shown, open_.end(), "/"));
}

void Findings::noteNames(const Attributes& attributes) {
  if (const XMLCh* id = attributes.getValue(u"id")) ids_.emplace(id);
  for (const XMLCh* attribute : referring) {
    const XMLCh* id = attributes.getValue(attribute);
    if (!id || !*id) continue;
    references_.push_back({id, fmt::format("{}: {}: {}=\"{}\" names nothing", placeOf(*locator_),
                                           path(), host::utf8(attribute), host::utf8(id))});
  }
}

void Findings::addMissingReferences() {
  const std::size_t before = findings_.size();
  for (Reference& reference : references_) {
    if (!ids_.contains(reference.id)) findings_.push_back(std::move(reference.text));
  }
  if (findings_.size() == before) add("a reference names a node of another kind");
}

// What is found comes before the start or end that it is about; of text there is no more.
void Findings::note(std::string place, std::string why) {
  pending_.push_back({std::move(place), std::move(why)});
}

void Findings::flush() {
  if (pending_.empty()) return;
  const std::string about = open_.empty() ? "" : path() + ": ";
  for (const Pending& finding : pending_) {
    findings_.push_back(fmt::format("{}: {}{}", finding.place, about, finding.why));
  }
  pending_.clear();
}

void Findings::error(const xercesc::SAXParseException& exception) {
  std::string why = reworded(host::utf8(exception.getMessage()));
  if (why.starts_with(missingReference)) {
    referenceMissing_ = true;
    return;
  }
  // No attribute of an unknown element is known.
  if (!pending_.empty() && pending_.back().why == unknownHere) return;
  const bool isText = why == textHere;
  note(placeOf(exception), std::move(why));
  if (isText) flush();
}

void Findings::fatalError(const xercesc::SAXParseException& exception) {
  note(placeOf(exception), host::utf8(exception.getMessage()));
  throw EndOfReading();
}

void Findings::startDTD(const XMLCh*, const XMLCh*, const XMLCh*) {
  note(placeOf(*locator_), "a document type declaration is not allowed");
  throw EndOfReading();
}

} // namespace schema
