! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Charts: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_charts
  use, intrinsic :: iso_c_binding, only: c_char, c_int64_t, c_ptr
  implicit none
  private
  public :: cx_init, cx_createchart, cx_createchartex, cx_createpiechart, cx_setcharttype, &
    cx_setcharttemplate, cx_setchartdescription, cx_createchartdescription, cx_setsplitcomposite, &
    cx_endchart, cx_killchart, cx_killcharts, cx_terminate, cx_dumpxml, cx_statisticssummary

  interface

    !> Starts the library for several charts: texts and data then live until cx_terminate_, where
    !> they otherwise go with the last chart. Returns 0.
    integer(c_int64_t) function cx_init(procedure_handle, dictionary, procedure_name, &
        procedure_name_length) bind(C, name="cx_init_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      character(kind=c_char), intent(in) :: procedure_name(*)
      integer(c_int64_t), intent(in) :: procedure_name_length
    end function

    !> Makes an empty chart and gives it the procedure's data. Returns the chart handle, from 0
    !> upward.
    integer(c_int64_t) function cx_createchart(procedure_handle, dictionary, procedure_name, &
        procedure_name_length) bind(C, name="cx_createchart_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      character(kind=c_char), intent(in) :: procedure_name(*)
      integer(c_int64_t), intent(in) :: procedure_name_length
    end function

    !> Makes a chart with one data source, an outer frame "graph_1" that clips and in it a frame
    !> "data_1" that does not. Returns the chart handle.
    integer(c_int64_t) function cx_createchartex(procedure_handle, dictionary, procedure_name, &
        procedure_name_length, chart, source, graph, data) bind(C, name="cx_createchartex_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      character(kind=c_char), intent(in) :: procedure_name(*)
      integer(c_int64_t), intent(in) :: procedure_name_length
      integer(c_int64_t), intent(inout) :: chart, source, graph, data
    end function

    !> Makes a chart with one data source, an outer frame "graph_1" and in it a frame "pie_1" that
    !> clips. Returns the chart handle.
    integer(c_int64_t) function cx_createpiechart(procedure_handle, dictionary, procedure_name, &
        procedure_name_length, chart, source, graph, pie) bind(C, name="cx_createpiechart_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      character(kind=c_char), intent(in) :: procedure_name(*)
      integer(c_int64_t), intent(in) :: procedure_name_length
      integer(c_int64_t), intent(inout) :: chart, source, graph, pie
    end function

    !> Says what the output side does to the chart after it is built. Returns 1, or -1 for another
    !> type, silently.
    integer(c_int64_t) function cx_setcharttype(chart, chart_type) &
        bind(C, name="cx_setcharttype_")
      import
      integer(c_int64_t), intent(in) :: chart, chart_type
    end function

    !> Names the template that the chart is drawn with. Returns 0, or -1 for an empty name,
    !> silently.
    integer(c_int64_t) function cx_setcharttemplate(chart, template_name, template_name_length) &
        bind(C, name="cx_setcharttemplate_")
      import
      integer(c_int64_t), intent(in) :: chart
      character(kind=c_char), intent(in) :: template_name(*)
      integer(c_int64_t), intent(in) :: template_name_length
    end function

    !> Describes the chart for readers who do not see it. Returns 0, or -1 for an empty text,
    !> silently.
    integer(c_int64_t) function cx_setchartdescription(chart, text, text_length) &
        bind(C, name="cx_setchartdescription_")
      import
      integer(c_int64_t), intent(in) :: chart
      character(kind=c_char), intent(in) :: text(*)
      integer(c_int64_t), intent(in) :: text_length
    end function

    !> Describes the chart for readers who do not see it, by a string handle. Returns 0, or -1 for
    !> an empty text, silently.
    integer(c_int64_t) function cx_createchartdescription(chart, description) &
        bind(C, name="cx_createchartdescription_")
      import
      integer(c_int64_t), intent(in) :: chart, description
    end function

    !> Says which split groups the chart stands for: "label: value, label: value" of the split
    !> variables goes with the chart. Returns 0, or -1 for an empty text, silently. Reports that
    !> there are no data.
    integer(c_int64_t) function cx_setsplitcomposite(chart, split_cells, ignored1) &
        bind(C, name="cx_setsplitcomposite_")
      import
      integer(c_int64_t), intent(in) :: chart
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: ignored1
    end function

    !> Completes the chart, sends it and forgets it; it is gone also when sending failed. While
    !> bootstrapping, nothing is sent and the result is -1. Returns 0.
    integer(c_int64_t) function cx_endchart(chart) bind(C, name="cx_endchart_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Discards a chart without sending it; a bad chart handle is ignored silently. Returns 0 in
    !> every case.
    integer(c_int64_t) function cx_killchart(chart) bind(C, name="cx_killchart_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Discards every chart without sending it; chart handles start at 0 again. Returns 0 in every
    !> case.
    integer(c_int64_t) function cx_killcharts() bind(C, name="cx_killcharts_")
      import
    end function

    !> Ends the library with every chart, text and data source in it; a second time it does nothing.
    !> Returns 0.
    integer(c_int64_t) function cx_terminate() bind(C, name="cx_terminate_")
      import
    end function

    !> Does nothing; kept for its callers. Returns -1 in every case.
    integer(c_int64_t) function cx_dumpxml(ignored1, ignored2, ignored3) &
        bind(C, name="cx_dumpxml_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, ignored3
    end function

    !> Does nothing; kept for its callers. Returns -1 in every case.
    integer(c_int64_t) function cx_statisticssummary(ignored1, ignored2, ignored3, ignored4) &
        bind(C, name="cx_statisticssummary_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, ignored3, ignored4
    end function

  end interface

end module
