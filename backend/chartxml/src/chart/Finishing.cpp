#include <chartxml/Chart.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "ChildOrder.h"
#include "Nodes.h"
#include <host/ChartPrinter.h>
#include <host/OutputText.h>
#include <host/Settings.h>
#include <host/Text.h>
#include <host/XDocument.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr auto sendErrorShow = SkErrorShow(2);
constexpr auto sendErrorLevel = SkErrorLevel(3);
constexpr auto firstSource = "source0";

std::vector<std::string> splitAtSemicolons(std::string_view text) {
  std::vector<std::string> tokens;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(';'), text.size());
    if (end > 0) tokens.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return tokens;
}

double toNumber(const std::string& token) {
  ChartString text;
  text.assignUTF8(token);
  return text.convertToDouble();
}

// A node prints shorter than this. Room that is not used costs nothing; a text that
// outgrows its room is copied, and held twice meanwhile. Where so much room can't be
// had, the text may still fit.
std::string roomFor(int nodes) {
  constexpr std::size_t printedNode = 1024;
  std::string room;
  try {
    room.reserve(printedNode * static_cast<std::size_t>(nodes + 1));
  } catch (const std::bad_alloc&) {
    return {};
  }
  return room;
}

} // namespace

int Chart::EndChart() {
  if ((qbootstrapping_() & 1) != 0) {
    printDebugInfo("endChart - Bootstrapping");
    return -1;
  }
  if (dataRefused_) {
    printDebugInfo("endChart - Fatal Error");
    return -1;
  }
  printDebugInfo("endChart - Start");
  int result = -1;
  try {
    updateGroupedChart();
    result = AddStyles();
    if (result == 0) result = send();
  } catch (const KorvaGoToCaller&) {
    throw;
  } catch (const ChartException& exception) {
    report("Fatal error while sending chart ( " + exception.what() + " )", Where::current());
    result = -1;
  } catch (...) {
    report("Fatal error while sending chart [ " + description_.toUTF8() + " ]", Where::current());
    result = -1;
  }
  printDebugInfo("endChart - Final");
  return result;
}

int Chart::send() {
  std::string xml;
  GetXmlBuffer(xml, true);
  XDocument output(xml, false, true);
  ZephVisualization& visualization = output.getExternalGraph()->getImplementation();
  if (chartType_ == 1 || chartType_ == 2) {
    customizeCharts(visualization)
        .customizeIciclePlots(chartType_ == 2, dataProcessor_->GetRowCount(firstSource));
  }
  updateVariableStatistics(visualization);
  output.customizeSPCharts();
  output.SetDescription(description_);
  output.SetSplitHeader(splitHeader_);
  output.SetChartTemplate(chartTemplate_);
  output.SetChartData(dataProcessor_.get());
  output.SetCalls([this](const host::TakeCall& take) { visitCalls(take); });
  if (output.SendChart(true, false, false)) return 0;
  SkError(SkString("Chart XML Send Error", true), sendErrorShow, sendErrorLevel);
  return -1;
}

int Chart::AddStyles() {
  try {
    writeStyleValues();
    DOMElement& root = *document_->getDocumentElement();
    for (DOMElement* part : {styleContainer_, defaultStyleCycle_, repositoryStyleCycle_}) {
      if (part) childOrder_->append(root, *part);
    }
    return 0;
  } catch (const xercesc::DOMException& exception) {
    ChartErrorHandler::error(exception);
  } catch (const KorvaGoToCaller&) {
    throw;
  } catch (...) {
    report("add styles error", Where::current());
  }
  return -1;
}

// What a procedure recorded about a variable, "statistic;value" or
// "statistic;minimum;maximum", moves from its description to its extension.
void Chart::updateVariableStatistics(ZephVisualization& chart) const {
  const std::string labeling = host::utf8(ZephUni::_labeling);
  for (CTVariableType& variable : chart.getSourceVariables()) {
    if (variable.getDescription() == labeling) continue;
    const auto tokens = splitAtSemicolons(variable.getDescription());
    if (tokens.empty()) continue;
    variable.removeDescription();
    ZephExtensionSV* known = variable.getExtension();
    ZephExtensionSV& extension = known ? *known : variable.addExtension();
    extension.setAttribute("statistic", tokens[0]);
    if (tokens.size() == 2) {
      extension.setValue(toNumber(tokens[1]));
    } else if (tokens.size() > 2) {
      extension.setMin(toNumber(tokens[1]));
      extension.setMax(toNumber(tokens[2]));
    }
  }
}

xercesc::DOMDocument* Chart::getChart() const {
  writeStyleValues();
  return document_;
}

void Chart::GetXmlBuffer(std::string& buffer, bool printWhiteSpace) const {
  writeStyleValues();
  ChartPrinter printer;
  printer.setPrintWhiteSpace(printWhiteSpace);
  std::ostringstream text(roomFor(nextHandle_));
  printer.Print(*document_, text);
  buffer = std::move(text).str();
}

// Callers do not read the answer: it is -1 also when the parameter was changed.
int Chart::SetLogUnsafe() {
  visitDescendants(*document_->getDocumentElement(), ZephUni::_dimension,
                   [](const DOMElement& dimension) {
                     if (!hasValue(dimension, ZephUni::_role, ZephUni::_y)) return false;
                     const DOMElement* scale = getChildByTagName(dimension, ZephUni::_scale);
                     if (!scale) return true;
                     visitDescendants(*scale, ZephUni::_parameter, [](DOMElement& parameter) {
                       if (!hasValue(parameter, ZephUni::_name, u"safe")) return false;
                       parameter.setAttribute(ZephUni::_value, ZephUni::_false);
                       return true;
                     });
                     return true;
                   });
  return -1;
}
