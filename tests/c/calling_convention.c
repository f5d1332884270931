/* The entry points as a C99 program sees them. */
#include <chartxml/EntryPoints.h>

#include <stdint.h>
#include <stdio.h>
#include <string.h>

static int failures = 0;

static void expect(const char* behaviour, int holds) {
  if (holds) return;
  ++failures;
  fprintf(stderr, "FAILED: %s\n", behaviour);
}

static const int64_t none = -1, zero = 0, one = 1, far_up = INT64_C(1) << 32;

/* The chart's document as it is by now. */
static const char* document(int64_t chart) {
  static char text[8192];
  const int64_t room = sizeof text - 1;
  const int64_t length = chartxml_getxml_(&chart, text, &room);
  expect("the document comes whole", length > 0 && length < room);
  text[length < 0 || length > room ? 0 : length] = '\0';
  return text;
}

static int64_t string(const char* bytes, int64_t length) {
  return cx_string_(&zero, bytes, &length);
}

static void test_integers_and_logicals(int64_t chart, int64_t frame) {
  const int64_t high_chart = chart + far_up, high_frame = frame + far_up;
  expect("only the low 32 bits of a handle count",
         cx_setframeclipping_(&high_chart, &high_frame, &far_up) == frame);
  expect("any number but 0 is true",
         strstr(document(chart), "<frame clip=\"true\" id=\"frame_data_1\"") != NULL);
  expect("a failure is -1 in 64 bits", cx_addframe_(&chart, &none, &none) == -1);

  int64_t style = -7, axis = -7;
  const int64_t role = far_up + 1;
  expect("what an entry point tests itself is all 64 bits",
         cx_adddimensionaxis_(&chart, &frame, &role, &none, &zero, &style, &axis, &none, &none,
                              &none, &none) == -1);
  expect("outputs after that are left alone", style == -7 && axis == -7);
}

static void test_texts(int64_t chart, int64_t frame) {
  const int64_t padded = string("ab  cd", 4);
  cx_addlabel_(&chart, &frame, &none, &padded);
  expect("a text has its own length, blanks included",
         strstr(document(chart), ">ab  </label>") != NULL);
  char text[3] = {'?', '?', '?'};
  const int64_t two = 2;
  expect("a text comes back with its whole length",
         chartxml_gettext_(&padded, text, &two) == 4 && memcmp(text, "ab?", 3) == 0);
  expect("no room takes nothing", chartxml_gettext_(&padded, NULL, &two) == 4);
}

static void test_columns(int64_t chart, int64_t source) {
  const int64_t variable = cx_addaggregate_(&chart, &source, &none, &zero, &none, &none, &none);
  const double numbers[] = {1.5, 2.5};
  const int64_t two = 2;
  expect("a column is stored", chartxml_loadnumbers_(&chart, &variable, &two, numbers, &two) == 0);
  expect("its rows are there", cx_addrow_(&chart, &zero) == 4);
  expect("texts, too", chartxml_loadtexts_(&chart, &variable, &one, "a bb", &two, &two) == 0);
  expect("no column is none", chartxml_loadnumbers_(&chart, &source, &one, numbers, &two) == -1);
}

static void test_messages(int64_t chart) {
  char message[60];
  const int64_t room = sizeof message, length = 4;
  expect("messages are held back", chartxml_begincall_() == 0);
  expect("a call is refused", cx_addframe_(&chart, &none, &none) == -1);
  expect("and told", chartxml_endcall_("call", &length, &one, &zero, &one, message, &room) == 1 &&
                         strncmp(message, "parent handle (-1) out of range (0-", 35) == 0 &&
                         message[room - 1] == ' ');
  chartxml_begincall_();
  expect("silence may be in order",
         chartxml_endcall_("call", &length, &one, &one, &one, message, &room) == 0);
}

int main(void) {
  int64_t chart = -7, source, graph, data;
  const int64_t length = 1;
  const int64_t made = cx_createchartex_(NULL, NULL, "c", &length, &chart, &source, &graph, &data);
  expect("a chart is made", made == 0 && chart == 0);
  test_integers_and_logicals(chart, data);
  test_texts(chart, graph);
  test_columns(chart, source);
  test_messages(chart);
  cx_killcharts_();
  expect("the library ends", cx_terminate_() == 0);
  return failures > 0;
}
