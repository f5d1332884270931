#include <chartxml/Chart.h>

#include <fmt/format.h>

#include "ChildOrder.h"
#include "NodeRule.h"
#include "Nodes.h"
#include "Placement.h"
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

namespace rule {

// The procedures know an interval's domain by the word element.
constexpr NodeRule intervalParent{
    "element", {ZephUni::_domain}, "can't add interval to anything but domain - "};
constexpr NodeRule referenceParent{
    "parent", {ZephUni::_domain}, "can't add domainReference to anything but domain - "};
constexpr NodeRule referenceTarget{"domain",
                                   {ZephUni::_domain, ZephUni::_variable},
                                   "domainReference must refer to a domain or variable "};
constexpr NodeRule orderedDomain{
    "domain", {ZephUni::_domain}, "can't set descending attribute for anything but a domain "};

constexpr ChildRule sort{{"domain", {ZephUni::_domain}, "can't add sort to anything but domain - "},
                         Chart::_sort,
                         placement::sort};
constexpr ChildRule simpleSort{
    {"sort", {Chart::_sort}, "can't add simpleSort to anything but sort - "},
    ZephUni::_simpleSort,
    {}};
constexpr AttributeRule simpleSortMethod{
    {"simpleSort", {ZephUni::_simpleSort}, nullptr}, ZephUni::_method, "method"};
constexpr NodeRule statisticSortParent{
    "sort", {Chart::_sort}, "can't add statisticSort to anything but sort - "};
constexpr AttributeRule sortDescending{
    {"sort", {Chart::_sort}, "can't set descending attribute for anything but a sort "},
    ZephUni::_descending,
    nullptr};

} // namespace rule

std::string inconsistent(const DOMElement& target, const DOMElement& parent) {
  const auto text = [](const DOMElement& node, const XMLCh* attribute) {
    return host::utf8(node.getAttribute(attribute));
  };
  return fmt::format(
      "domainReference ({}) categorical value of {} is not consistent with that of the "
      "parent( {}) value of {}",
      text(target, ZephUni::_id), text(target, ZephUni::_categorical), text(parent, ZephUni::_id),
      text(parent, ZephUni::_categorical));
}

} // namespace

int Chart::AddDomain(bool categorical) {
  DOMElement& domain = makeElement(ZephUni::_domain);
  AddIDAttribute(domain, -1);
  setFlag(domain, ZephUni::_categorical, categorical);
  return place(*document_->getDocumentElement(), domain, placement::domain);
}

int Chart::AddInterval(int domain, int min, int max) {
  const Where here = Where::current();
  if (!valid(domain, rule::intervalParent, here) || !validString(min, "min", here) ||
      !validString(max, "max", here)) {
    return -1;
  }
  DOMElement* parent = accepted(domain, rule::intervalParent, here);
  if (!parent) return -1;
  DOMElement& interval = makeElement(ZephUni::_interval);
  setText(interval, ZephUni::_min, min);
  setText(interval, ZephUni::_max, max);
  return place(*parent, interval, placement::interval);
}

int Chart::AddDomainReference(int domain, int domainOrVariable) {
  const Where here = Where::current();
  if (!valid(domain, rule::referenceParent, here) ||
      !valid(domainOrVariable, rule::referenceTarget, here)) {
    return -1;
  }
  DOMElement* parent = accepted(domain, rule::referenceParent, here);
  const DOMElement* target =
      parent ? accepted(domainOrVariable, rule::referenceTarget, here) : nullptr;
  if (!target) return -1;
  if (!hasValue(*target, ZephUni::_categorical, parent->getAttribute(ZephUni::_categorical))) {
    report(inconsistent(*target, *parent), here);
    return -1;
  }
  DOMElement& reference = makeElement(ZephUni::_domainReference);
  AddIDREFAttribute(reference, domainOrVariable, ZephUni::_domain);
  return append(*parent, reference);
}

int Chart::SetDomainDescending(int domain, bool descending) {
  const Where here = Where::current();
  if (!valid(domain, rule::orderedDomain, here)) return -1;
  DOMElement* target = accepted(domain, rule::orderedDomain, here);
  if (!target) return -1;
  setFlag(*sortOf(*target), ZephUni::_descending, descending);
  return domain;
}

DOMElement* Chart::sortOf(DOMElement& domain) {
  if (DOMElement* known = childOrder_->first(domain, _sort)) return known;
  return getElement(place(domain, makeElement(_sort), placement::sort));
}

// Sorts

int Chart::AddSort(int domain) { return addChild(domain, rule::sort, Where::current()); }
int Chart::AddSimpleSort(int sort) { return addChild(sort, rule::simpleSort, Where::current()); }

int Chart::SetSimpleSortMethod(int simpleSort, int method) {
  return setAttributeText(simpleSort, rule::simpleSortMethod, method, Where::current());
}

int Chart::AddStatisticSort(int sort, int sourceVariable, int statVariable) {
  const Where here = Where::current();
  if (!valid(sort, rule::statisticSortParent, here) ||
      !validHandle(sourceVariable, "sourceVariable") ||
      !validHandle(statVariable, "statVariable")) {
    return -1;
  }
  DOMElement* parent = accepted(sort, rule::statisticSortParent, here);
  if (!parent || !getElement(sourceVariable) || !getElement(statVariable)) return -1;
  DOMElement& statisticSort = makeElement(ZephUni::_statisticSort);
  AddIDREFAttribute(statisticSort, sourceVariable, ZephUni::_sourceVariable);
  AddIDREFAttribute(statisticSort, statVariable, ZephUni::_statVariable);
  return append(*parent, statisticSort);
}

int Chart::SetSortDescending(int sort, bool descending) {
  return setAttributeFlag(sort, rule::sortDescending, descending, Where::current());
}
