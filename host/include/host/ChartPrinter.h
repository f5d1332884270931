#pragma once

#include <ostream>

#include <xercesc/dom/DOMDocument.hpp>

/// Prints a document as UTF-8 XML that reads back to the same document, line
/// feeds and tabs in attributes included.
class ChartPrinter {
public:
  /// Indents elements that hold no text.
  void setPrintWhiteSpace(bool on) { printWhiteSpace_ = on; }

  /// Throws ChartException when the document cannot be written.
  void Print(const xercesc::DOMDocument& document, std::ostream& out) const;

private:
  bool printWhiteSpace_ = false;
};
