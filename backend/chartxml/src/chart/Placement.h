#pragma once

#include <chartxml/Chart.h>
#include <host/ZephUni.h>

/// Where each kind of node goes among its siblings: before the first child named
/// in its set, else last. The sets keep every element's children in one order
/// whatever the order of the calls. They differ from kind to kind on purpose.
namespace placement {

using Names = const XMLCh* const[];

inline constexpr Names source = {ZephUni::_variable, ZephUni::_domain, ZephUni::_frame,
                                 ZephUni::_style};
inline constexpr Names variable = {ZephUni::_domain, ZephUni::_frame, ZephUni::_style};
inline constexpr Names variableCopy = {ZephUni::_domain, ZephUni::_frame, ZephUni::_style,
                                       Chart::_stylecycle};
inline constexpr Names frame = {ZephUni::_style};
inline constexpr Names meta = {ZephUni::_relabel};

inline constexpr Names position = {Chart::_styleby, ZephUni::_color, ZephUni::_labeling,
                                   ZephUni::_split};
inline constexpr Names x = {ZephUni::_y,     ZephUni::_z,        Chart::_styleby,
                            ZephUni::_color, ZephUni::_labeling, ZephUni::_split};
inline constexpr Names y = {ZephUni::_z, Chart::_styleby, ZephUni::_color, ZephUni::_labeling,
                            ZephUni::_split};
inline constexpr Names z = {Chart::_styleby, ZephUni::_color, ZephUni::_labeling, ZephUni::_split};
inline constexpr Names r = {ZephUni::_phi,   ZephUni::_z,        Chart::_styleby,
                            ZephUni::_color, ZephUni::_labeling, ZephUni::_split};
inline constexpr Names theta = {ZephUni::_r,     ZephUni::_phi,   ZephUni::_z,
                                Chart::_styleby, ZephUni::_color, ZephUni::_labeling,
                                ZephUni::_split};
inline constexpr Names phi = {Chart::_styleby, ZephUni::_color, ZephUni::_labeling,
                              ZephUni::_split};
inline constexpr Names styleBy = {ZephUni::_color, ZephUni::_labeling, ZephUni::_split};
inline constexpr Names labeling = {ZephUni::_split};
inline constexpr Names size = {Chart::_numberformat, Chart::_stringformat, Chart::_datetimeformat};
inline constexpr Names color = {ZephUni::_labeling, ZephUni::_split};
inline constexpr Names statistic = {ZephUni::_x,     ZephUni::_y, ZephUni::_z,
                                    ZephUni::_theta, ZephUni::_r, ZephUni::_phi};
inline constexpr Names location = {ZephUni::_label,
                                   ZephUni::_legend,
                                   ZephUni::_frame,
                                   Chart::_tablefacet,
                                   Chart::_facetlabeling,
                                   Chart::_coordinatefacet,
                                   Chart::_coordinatetransform,
                                   ZephUni::_dimension,
                                   ZephUni::_guide,
                                   Chart::_elementgroup,
                                   ZephUni::_element};
inline constexpr Names label = {ZephUni::_majorTicks, ZephUni::_minorTicks, ZephUni::_legendTarget,
                                ZephUni::_transform};

inline constexpr Names dimension = {ZephUni::_guide, Chart::_elementgroup, ZephUni::_element};
inline constexpr Names scale = {ZephUni::_axis, ZephUni::_label};
inline constexpr Names majorTicks = {ZephUni::_minorTicks, ZephUni::_legendTarget};

inline constexpr Names domain = {ZephUni::_frame, ZephUni::_style};
inline constexpr Names interval = {ZephUni::_domainReference, Chart::_sort,
                                   Chart::_numberformat,      Chart::_stringformat,
                                   Chart::_datetimeformat,    ZephUni::_relabel};
inline constexpr Names sort = {Chart::_numberformat, Chart::_stringformat, Chart::_datetimeformat,
                               ZephUni::_relabel};

inline constexpr Names tableFacet = {
    Chart::_facetlabeling, Chart::_coordinatefacet, Chart::_coordinatetransform,
    ZephUni::_dimension,   ZephUni::_guide,         Chart::_elementgroup,
    ZephUni::_element};
inline constexpr Names facetLabeling = {Chart::_coordinatefacet, Chart::_coordinatetransform,
                                        ZephUni::_dimension,     ZephUni::_guide,
                                        Chart::_elementgroup,    ZephUni::_element};
inline constexpr Names coordinateFacet = {Chart::_coordinatetransform, ZephUni::_dimension,
                                          ZephUni::_guide, Chart::_elementgroup, ZephUni::_element};
inline constexpr Names facetStyle = {ZephUni::_position, ZephUni::_x,     ZephUni::_y,
                                     ZephUni::_z,        ZephUni::_theta, ZephUni::_r,
                                     ZephUni::_phi,      Chart::_styleby, ZephUni::_color,
                                     ZephUni::_labeling, ZephUni::_split};
inline constexpr Names coordinateTransform = {ZephUni::_dimension, ZephUni::_guide,
                                              ZephUni::_element, Chart::_elementgroup};

} // namespace placement
