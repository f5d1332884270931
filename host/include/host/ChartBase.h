#pragma once

#include <string>
#include <string_view>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>

#include <host/Export.h>

/// What every holder of chart XML shares: the vocabulary of style and label
/// names, the document factory and the attribute helpers.
class KORVA_API ChartBase {
public:
  // Characters and prefixes: these members' texts differ from their names.
  static constexpr XMLCh _dollarSign[] = u"$";
  static constexpr XMLCh _external_[] = u"external_";
  static constexpr XMLCh _internal_[] = u"internal_";
  static constexpr XMLCh _percent[] = u"%";
  static constexpr XMLCh _semicolon[] = u";";
  static constexpr XMLCh _underscore[] = u"_";
  static constexpr XMLCh _utf8[] = u"UTF-8";

  // Words: the text is the member's name without the leading underscore.
  static constexpr XMLCh _aggregate[] = u"aggregate";
  static constexpr XMLCh _aimcenterstep[] = u"aimcenterstep";
  static constexpr XMLCh _attributes[] = u"attributes";
  static constexpr XMLCh _barmargin[] = u"barmargin";
  static constexpr XMLCh _binhighval[] = u"binhighval";
  static constexpr XMLCh _binlowval[] = u"binlowval";
  static constexpr XMLCh _bins[] = u"bins";
  static constexpr XMLCh _biplot_line[] = u"biplot_line";
  static constexpr XMLCh _biplot_point[] = u"biplot_point";
  static constexpr XMLCh _boxplot[] = u"boxplot";
  static constexpr XMLCh _boxplotmargin[] = u"boxplotmargin";
  static constexpr XMLCh _casenum[] = u"casenum";
  static constexpr XMLCh _categories[] = u"categories";
  static constexpr XMLCh _centroid[] = u"centroid";
  static constexpr XMLCh _clusteredbar[] = u"clusteredbar";
  static constexpr XMLCh _constant[] = u"constant";
  static constexpr XMLCh _container[] = u"container";
  static constexpr XMLCh _controlchart_Average[] = u"controlchart_Average";
  static constexpr XMLCh _controlchart_Center_Step_LCL[] = u"controlchart_Center_Step_LCL";
  static constexpr XMLCh _controlchart_Center_Step_UCL[] = u"controlchart_Center_Step_UCL";
  static constexpr XMLCh _controlchart_LCL[] = u"controlchart_LCL";
  static constexpr XMLCh _controlchart_line[] = u"controlchart_line";
  static constexpr XMLCh _controlchart_LSpec[] = u"controlchart_LSpec";
  static constexpr XMLCh _controlchart_marker[] = u"controlchart_marker";
  static constexpr XMLCh _controlchart_UCL[] = u"controlchart_UCL";
  static constexpr XMLCh _controlchart_USpec[] = u"controlchart_USpec";
  static constexpr XMLCh _countname[] = u"countname";
  static constexpr XMLCh _datasource[] = u"datasource";
  static constexpr XMLCh _dateFormat[] = u"dateFormat";
  static constexpr XMLCh _dayOfMonth[] = u"dayOfMonth";
  static constexpr XMLCh _dayOfWeek[] = u"dayOfWeek";
  static constexpr XMLCh _default_style[] = u"default_style";
  static constexpr XMLCh _differenceline[] = u"differenceline";
  static constexpr XMLCh _dropdownline[] = u"dropdownline";
  static constexpr XMLCh _errorbar[] = u"errorbar";
  static constexpr XMLCh _errorbarhidden[] = u"errorbarhidden";
  static constexpr XMLCh _exponent[] = u"exponent";
  static constexpr XMLCh _facetGap[] = u"facetGap";
  static constexpr XMLCh _facetGapVert[] = u"facetGapVert";
  static constexpr XMLCh _facetLabelAngle[] = u"facetLabelAngle";
  static constexpr XMLCh _footnote[] = u"footnote";
  static constexpr XMLCh _grid[] = u"grid";
  static constexpr XMLCh _gridLineStyle[] = u"gridLineStyle";
  static constexpr XMLCh _groupbarmargin[] = u"groupbarmargin";
  static constexpr XMLCh _hex[] = u"hex";
  static constexpr XMLCh _hiddenline[] = u"hiddenline";
  static constexpr XMLCh _histogrammargin[] = u"histogrammargin";
  static constexpr XMLCh _isotropic[] = u"isotropic";
  static constexpr XMLCh _manova_line[] = u"manova_line";
  static constexpr XMLCh _manova_point[] = u"manova_point";
  static constexpr XMLCh _matrixscatter[] = u"matrixscatter";
  static constexpr XMLCh _matrixscatterdiagonal[] = u"matrixscatterdiagonal";
  static constexpr XMLCh _matrixscatterinnerx[] = u"matrixscatterinnerx";
  static constexpr XMLCh _matrixscatterinnery[] = u"matrixscatterinnery";
  static constexpr XMLCh _matrixscatterx[] = u"matrixscatterx";
  static constexpr XMLCh _matrixscattery[] = u"matrixscattery";
  static constexpr XMLCh _nmv[] = u"nmv";
  static constexpr XMLCh _panel[] = u"panel";
  static constexpr XMLCh _percentname[] = u"percentname";
  static constexpr XMLCh _rangebar[] = u"rangebar";
  static constexpr XMLCh _referenceLine[] = u"referenceLine";
  static constexpr XMLCh _scatter[] = u"scatter";
  static constexpr XMLCh _series[] = u"series";
  static constexpr XMLCh _simplearea[] = u"simplearea";
  static constexpr XMLCh _simplebar[] = u"simplebar";
  static constexpr XMLCh _simpleline[] = u"simpleline";
  static constexpr XMLCh _stackedarea[] = u"stackedarea";
  static constexpr XMLCh _stackedbar[] = u"stackedbar";
  static constexpr XMLCh _stackinterpolating[] = u"stackinterpolating";
  static constexpr XMLCh _styleCycleColor[] = u"styleCycleColor";
  static constexpr XMLCh _styleCycleDefault[] = u"styleCycleDefault";
  static constexpr XMLCh _styleCyclePattern[] = u"styleCyclePattern";
  static constexpr XMLCh _styleCycleRepository[] = u"styleCycleRepository";
  static constexpr XMLCh _subtitle[] = u"subtitle";
  static constexpr XMLCh _survival_censored[] = u"survival_censored";
  static constexpr XMLCh _survival_line[] = u"survival_line";
  static constexpr XMLCh _survival_point[] = u"survival_point";
  static constexpr XMLCh _system[] = u"system";
  static constexpr XMLCh _tile[] = u"tile";
  static constexpr XMLCh _timeFormat[] = u"timeFormat";
  static constexpr XMLCh _title[] = u"title";
  static constexpr XMLCh _triplot_line[] = u"triplot_line";
  static constexpr XMLCh _triplot_point[] = u"triplot_point";
  static constexpr XMLCh _weightname[] = u"weightname";
  static constexpr XMLCh _wgt[] = u"wgt";
  static constexpr XMLCh _x1[] = u"x1";
  static constexpr XMLCh _x2[] = u"x2";
  static constexpr XMLCh _xyplane[] = u"xyplane";
  static constexpr XMLCh _xzplane[] = u"xzplane";
  static constexpr XMLCh _y1[] = u"y1";
  static constexpr XMLCh _y2[] = u"y2";
  static constexpr XMLCh _yFunctionOfX[] = u"yFunctionOfX";
  static constexpr XMLCh _yzplane[] = u"yzplane";

  /// A new document with the document element "graph", or null when the parser
  /// platform is not up or has no memory left. The factory keeps the platform
  /// alive until the document is released, also past XMLPlatformUtils::Terminate.
  static xercesc::DOMDocument* createDocument(const XMLCh* encoding);

  /// Releases a document of createDocument; null is ignored.
  static void releaseDocument(xercesc::DOMDocument* document);

  /// Sets the attribute "id" and registers it, so that getElementById finds the
  /// element, also while it is not attached to the tree.
  static void AddID(xercesc::DOMElement& element, const XMLCh* id);

  /// The element after `at` below `root` in document order, or null; below `at` only
  /// when `enter` answers true for it. However deep the tree, the stack stays flat.
  template <class Enter> static xercesc::DOMElement*
  nextBelow(const xercesc::DOMElement& root, xercesc::DOMElement& at, Enter enter) {
    xercesc::DOMElement* child = at.getFirstElementChild();
    if (child && enter(at)) return child;
    xercesc::DOMElement* left = &at;
    while (left != &root && !left->getNextElementSibling())
      left = static_cast<xercesc::DOMElement*>(left->getParentNode());
    return left == &root ? nullptr : left->getNextElementSibling();
  }

  /// Takes the ids of an element that leaves the tree, and of all below it, out of
  /// the register.
  static void releaseIDs(xercesc::DOMElement& root);

  /// Sets an attribute. Returns 0.
  static int AddAttribute(xercesc::DOMElement& element, const XMLCh* name, const XMLCh* value);

  /// Sets every attribute of `from` on `to`, the id excepted: an id names one
  /// element only.
  static void mergeAttributes(const xercesc::DOMElement& from, xercesc::DOMElement& to);

  /// The first child element of that name, or null.
  static xercesc::DOMElement* getChildByTagName(const xercesc::DOMElement& parent,
                                                const XMLCh* name);

  /// Removes every child; the ids below the element become free.
  static void removeAllChildren(xercesc::DOMElement& element);

  /// A number as text for machines: decimal point '.', never grouped, the fewest
  /// digits that read back to the same number ("2", "0.1", "100000", "1e+300").
  static std::string asString(double value);
  static std::string asString(int value);

  /// One trace line on standard error when tracing is switched on.
  static void printDebugInfo(std::string_view text);
};
