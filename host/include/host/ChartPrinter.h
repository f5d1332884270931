#pragma once

#include <ostream>

#include <xercesc/dom/DOMDocument.hpp>

/// Prints a document as UTF-8 XML that reads back to the same document, line
/// feeds and tabs in attributes included.
class ChartPrinter {
public:
  /// Indents; the texts of elements that hold nothing but text stay as they are.
  void setPrintWhiteSpace(bool on) { printWhiteSpace_ = on; }

  /// Throws ChartException when the document holds a character that XML forbids
  /// or the stream fails; part of the document may have been written by then.
  void Print(const xercesc::DOMDocument& document, std::ostream& out) const;

private:
  bool printWhiteSpace_ = false;
};
