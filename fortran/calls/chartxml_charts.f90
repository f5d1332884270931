! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Charts, as Fortran has it.
module chartxml_charts
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t, c_ptr
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_charts
  implicit none
  private
  public :: start_library, new_chart, new_chart_with_frames, new_pie_chart, set_chart_type, &
    set_chart_template, set_chart_description, set_split_composite, end_chart, kill_chart, &
    kill_charts, end_library

contains

  !> Starts the library for several charts: texts and data then live until cx_terminate_, where they
  !> otherwise go with the last chart.
  subroutine start_library(procedure_name, dictionary, procedure_handle, stat, errmsg)
    character(*), intent(in) :: procedure_name
    type(c_ptr), intent(in), optional :: dictionary, procedure_handle
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('start_library', stat)
    if (this%sound) this%result = cx_init(this%address(procedure_handle), &
      this%address(dictionary), procedure_name, len(procedure_name, c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Makes an empty chart and gives it the procedure's data. chart: the chart handle, from 0 upward.
  subroutine new_chart(procedure_name, chart, dictionary, procedure_handle, stat, errmsg)
    character(*), intent(in) :: procedure_name
    class(*), intent(inout) :: chart
    type(c_ptr), intent(in), optional :: dictionary, procedure_handle
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('new_chart', stat)
    call this%take_output(0, 'chart', chart)
    if (this%sound) this%result = cx_createchart(this%address(procedure_handle), &
      this%address(dictionary), procedure_name, len(procedure_name, c_int64_t))
    call this%finish(made=chart, stat=stat, errmsg=errmsg)
  end subroutine

  !> Makes a chart with one data source, an outer frame "graph_1" that clips and in it a frame
  !> "data_1" that does not.
  subroutine new_chart_with_frames(procedure_name, chart, dictionary, source, graph, data, &
      procedure_handle, stat, errmsg)
    character(*), intent(in) :: procedure_name
    class(*), intent(inout) :: chart
    type(c_ptr), intent(in), optional :: dictionary, procedure_handle
    class(*), intent(inout), optional :: source, graph, data, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('new_chart_with_frames', stat)
    call this%take_output(1, 'chart', chart)
    call this%take_output(2, 'source', source)
    call this%take_output(3, 'graph', graph)
    call this%take_output(4, 'data', data)
    if (this%sound) this%result = cx_createchartex(this%address(procedure_handle), &
      this%address(dictionary), procedure_name, len(procedure_name, c_int64_t), this%o(1), &
      this%o(2), this%o(3), this%o(4))
    call this%give(1, chart)
    call this%give(2, source)
    call this%give(3, graph)
    call this%give(4, data)
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Makes a chart with one data source, an outer frame "graph_1" and in it a frame "pie_1" that
  !> clips.
  subroutine new_pie_chart(procedure_name, chart, dictionary, source, graph, pie, &
      procedure_handle, stat, errmsg)
    character(*), intent(in) :: procedure_name
    class(*), intent(inout) :: chart
    type(c_ptr), intent(in), optional :: dictionary, procedure_handle
    class(*), intent(inout), optional :: source, graph, pie, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('new_pie_chart', stat)
    call this%take_output(1, 'chart', chart)
    call this%take_output(2, 'source', source)
    call this%take_output(3, 'graph', graph)
    call this%take_output(4, 'pie', pie)
    if (this%sound) this%result = cx_createpiechart(this%address(procedure_handle), &
      this%address(dictionary), procedure_name, len(procedure_name, c_int64_t), this%o(1), &
      this%o(2), this%o(3), this%o(4))
    call this%give(1, chart)
    call this%give(2, source)
    call this%give(3, graph)
    call this%give(4, pie)
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Says what the output side does to the chart after it is built.
  subroutine set_chart_type(chart, chart_type, stat, errmsg)
    class(*), intent(in) :: chart, chart_type
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_chart_type', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'chart_type', chart_type)
    if (this%sound) this%result = cx_setcharttype(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Names the template that the chart is drawn with.
  subroutine set_chart_template(chart, template_name, stat, errmsg)
    class(*), intent(in) :: chart
    character(*), intent(in) :: template_name
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_chart_template', stat)
    call this%take(1, 'chart', chart)
    if (this%sound) this%result = cx_setcharttemplate(this%i(1), template_name, &
      len(template_name, c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Describes the chart for readers who do not see it, by a string handle.
  subroutine set_chart_description(chart, description, stat, errmsg)
    class(*), intent(in) :: chart, description
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_chart_description', stat)
    call this%take(1, 'chart', chart)
    call this%take_string(2, 'description', description)
    if (this%sound) this%result = cx_createchartdescription(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Says which split groups the chart stands for: "label: value, label: value" of the split
  !> variables goes with the chart. Refuses that there are no data.
  subroutine set_split_composite(chart, split_cells, stat, errmsg)
    class(*), intent(in) :: chart
    real(c_double), intent(in) :: split_cells(:)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_split_composite', stat)
    call this%take(1, 'chart', chart)
    if (this%sound) this%result = cx_setsplitcomposite(this%i(1), split_cells, 0_c_int64_t)
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Completes the chart, sends it and forgets it; it is gone also when sending failed. While
  !> bootstrapping, nothing is sent and the result is -1.
  subroutine end_chart(chart, stat, errmsg)
    class(*), intent(in) :: chart
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('end_chart', stat)
    call this%take(1, 'chart', chart)
    if (this%sound) this%result = cx_endchart(this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Discards a chart without sending it; a bad chart handle is ignored silently.
  subroutine kill_chart(chart, stat, errmsg)
    class(*), intent(in) :: chart
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('kill_chart', stat, any_result=.true.)
    call this%take(1, 'chart', chart)
    if (this%sound) this%result = cx_killchart(this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Discards every chart without sending it; chart handles start at 0 again.
  subroutine kill_charts(stat, errmsg)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('kill_charts', stat, any_result=.true.)
    if (this%sound) this%result = cx_killcharts()
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Ends the library with every chart, text and data source in it; a second time it does nothing.
  subroutine end_library(stat, errmsg)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('end_library', stat)
    if (this%sound) this%result = cx_terminate()
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

end module
