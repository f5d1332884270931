/* Penguins by flipper length and body mass, drawn from C.
 *
 * usage: draw <the penguins' data package> */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

#include <chartxml/EntryPoints.h>
#include <host/Korva.h>

static int failures = 0;

static void expect(const char* behaviour, int holds) {
  if (holds) return;
  ++failures;
  fprintf(stderr, "FAILED: %s\n", behaviour);
}

static int64_t made(const char* what, int64_t handle) {
  if (handle >= 0) return handle;
  fprintf(stderr, "cannot make %s\n", what);
  exit(1);
}

static int64_t length(const char* text) {
  int64_t count = 0;
  while (text[count])
    ++count;
  return count;
}

static const int64_t none = -1, zero = 0, one = 1, two = 2;

static int64_t column(void** data_set, const char* name) {
  const int64_t count = length(name);
  return made(name, korva_findcolumn_(data_set, name, &count));
}

static void open_penguins(const char* path, void** data_set) {
  const int64_t count = length(path);
  made("an open data set", korva_open_(path, &count, data_set));
  const int64_t columns[] = {column(data_set, "flipper_length_mm"),
                             column(data_set, "body_mass_g")};
  made("the variables", korva_usevariables_(data_set, columns, &two));
}

/* A row is drawn when neither of its numbers is missing. */
static void add_rows(void** data_set, int64_t chart, int64_t source, int64_t x, int64_t y) {
  const int64_t rows = korva_rowcount_(data_set);
  for (int64_t row = 1; row <= rows; ++row) {
    double cells[2];
    made("a row's cells", korva_readrow_(data_set, &row, cells, &two));
    if (cells[0] <= korva_missing_() || cells[1] <= korva_missing_()) continue;
    made("a row", cx_addrow_(&chart, &source));
    made("a number", cx_adddoubledatavalue_(&chart, &source, &x, &cells[0]));
    made("a number", cx_adddoubledatavalue_(&chart, &source, &y, &cells[1]));
  }
}

static void try_conventions(int64_t chart, int64_t graph, int64_t data) {
  const int64_t above = (int64_t)1 << 32;
  const int64_t chart_above = chart + above, role_above = 1 + above, yes = -7;
  int64_t style = 17, axis = 18;

  expect("a failure is -1 in 64 bits", cx_addx_(&chart, &graph, &graph) == -1);
  expect("only the low 32 bits of a handle count, and any number but 0 is true",
         cx_setframeclipping_(&chart_above, &data, &yes) == data);
  expect("an entry point of several steps compares all 64",
         cx_adddimensionaxis_(&chart, &data, &role_above, &none, &zero, &style, &axis, &none, &none,
                              &none, &none) == -1);
  expect("and leaves its outputs alone", style == 17 && axis == 18);
}

int main(int count, char** arguments) {
  if (count != 2) return 2;
  void* data_set = NULL;
  open_penguins(arguments[1], &data_set);

  const int64_t name_length = 7, title_length = 6, style_of_points = 96, type_point = 23;
  int64_t chart, source, graph, data, points, x_style, x_axis, y_style, y_axis;
  made("a chart", cx_createchartex_(NULL, &data_set, "outside, not all of this", &name_length,
                                    &chart, &source, &graph, &data));
  try_conventions(chart, graph, data);

  const int64_t x = made("x", cx_addvariable_(&chart, &source, &one, &zero));
  const int64_t y = made("y", cx_addvariable_(&chart, &source, &two, &zero));
  add_rows(&data_set, chart, source, x, y);
  made("the axes", cx_addxydimensionwithaxis_(&chart, &data, &none, &none, &zero, &zero, &x_style,
                                              &x_axis, &y_style, &y_axis));
  made("the points",
       cx_addxyelementex_(&chart, &data, &one, &type_point, &x, &y, &style_of_points, &points));
  const int64_t title = made("a text", cx_string_(&zero, "[ab  ]not this", &title_length));
  made("a label", cx_addlabel_(&chart, &graph, &none, &title));

  made("the chart", cx_endchart_(&chart));
  made("the library's end", cx_terminate_());
  korva_close_(&data_set);
  return failures == 0 ? 0 : 1;
}
