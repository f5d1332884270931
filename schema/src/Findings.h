#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include <xercesc/sax2/DefaultHandler.hpp>

namespace schema {

/// Thrown where a document cannot be read on.
struct EndOfReading {};

/// Collects what a parser finds wrong with a document, each with the element that it
/// is about.
class Findings final : public xercesc::DefaultHandler {
public:
  /// Hands over what was found.
  std::vector<std::string> take() { return std::move(findings_); }
  /// Adds a finding about the document as a whole.
  void add(std::string_view why) { findings_.emplace_back(why); }
  /// Takes what was found last as being about the element that is open.
  void flush();

  void setDocumentLocator(const xercesc::Locator* locator) override { locator_ = locator; }
  void startDTD(const XMLCh*, const XMLCh*, const XMLCh*) override;
  void startElement(const XMLCh*, const XMLCh*, const XMLCh* name,
                    const xercesc::Attributes& attributes) override;
  void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override;
  void warning(const xercesc::SAXParseException& exception) override { error(exception); }
  void error(const xercesc::SAXParseException& exception) override;
  void fatalError(const xercesc::SAXParseException& exception) override;

private:
  struct Pending {
    std::string place;
    std::string why;
  };
  struct Reference {
    std::u16string id;
    std::string text;
  };

  void note(std::string place, std::string why);
  void noteNames(const xercesc::Attributes& attributes);
  void addMissingReferences();
  std::string path() const;

  const xercesc::Locator* locator_ = nullptr;
  std::vector<std::string> findings_;
  std::vector<Pending> pending_;  ///< about the element whose start or end comes next
  std::vector<std::string> open_; ///< names of the elements from the graph on
  std::unordered_set<std::u16string> ids_;
  std::vector<Reference> references_;
  bool referenceMissing_ = false;
};

} // namespace schema
