! Penguins by flipper length and body mass, drawn from Fortran.
!
! usage: draw <the penguins' data package>
program draw
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t, c_null_ptr
  use, intrinsic :: iso_fortran_env, only: error_unit
  use chartxml, only: cx_addlabel, cx_addrow, cx_addvariable, cx_addx, cx_adddimensionaxis, &
    cx_adddoubledatavalue, cx_addxydimensionwithaxis, cx_addxyelementex, cx_createchartex, &
    cx_endchart, cx_setframeclipping, cx_string, cx_terminate
  use korva, only: data_set, missing_value
  implicit none

  integer, parameter :: cx = c_int64_t
  integer(cx), parameter :: none = -1, no = 0, style_of_points = 96, type_point = 23
  type(data_set) :: penguins
  integer(cx) :: chart, source, graph, data, x, y, points, x_style, x_axis, y_style, y_axis
  integer :: failures = 0

  call open_penguins
  chart = made('a chart', cx_createchartex(c_null_ptr, penguins%dictionary, &
    'outside, not all of this', 7_cx, chart, source, graph, data))
  call try_conventions

  x = made('x', cx_addvariable(chart, source, 1_cx, no))
  y = made('y', cx_addvariable(chart, source, 2_cx, no))
  call add_rows
  call make('the axes', cx_addxydimensionwithaxis(chart, data, none, none, no, no, &
    x_style, x_axis, y_style, y_axis))
  call make('the points', cx_addxyelementex(chart, data, 1_cx, type_point, x, y, &
    style_of_points, points))
  call make('a label', cx_addlabel(chart, graph, none, cx_string(no, '[ab  ]not this', 6_cx)))

  call make('the chart', cx_endchart(chart))
  call make('the end of the library', cx_terminate())
  call penguins%close()
  if (failures > 0) stop 1

contains

  subroutine open_penguins
    character(512) :: path

    call get_command_argument(1, path)
    if (.not. penguins%open(trim(path))) stop 1
    if (.not. penguins%use_variables([penguins%find_column('flipper_length_mm'), &
      penguins%find_column('body_mass_g')])) stop 1
  end subroutine

  subroutine try_conventions
    integer(cx), parameter :: above = 2_cx**32
    integer(cx) :: style, axis, outputs(2)

    call expect('a failure is -1 in 64 bits', cx_addx(chart, graph, graph) == -1)
    call expect('only the low 32 bits of a handle count, and any number but 0 is true', &
      cx_setframeclipping(chart + above, data, -7_cx) == data)
    style = 17; axis = 18
    call expect('an entry point of several steps compares all 64', cx_adddimensionaxis(chart, &
      data, 1 + above, none, no, style, axis, none, none, none, none) == -1)
    outputs = [style, axis]
    call expect('and leaves its outputs alone', all(outputs == [17, 18]))
  end subroutine

  !> A row is drawn when neither of its numbers is missing.
  subroutine add_rows
    real(c_double) :: cells(2)
    integer :: row

    do row = 1, penguins%row_count()
      if (.not. penguins%read_row(row, cells)) stop 1
      if (any(cells <= missing_value())) cycle
      call make('a row', cx_addrow(chart, source))
      call make('a number', cx_adddoubledatavalue(chart, source, x, cells(1)))
      call make('a number', cx_adddoubledatavalue(chart, source, y, cells(2)))
    end do
  end subroutine

  subroutine expect(behaviour, holds)
    character(*), intent(in) :: behaviour
    logical, intent(in) :: holds

    if (holds) return
    failures = failures + 1
    write (error_unit, '(2a)') 'FAILED: ', behaviour
  end subroutine

  subroutine make(what, handle)
    character(*), intent(in) :: what
    integer(cx), intent(in) :: handle

    if (handle >= 0) return
    write (error_unit, '(2a)') 'cannot make ', what
    stop 1
  end subroutine

  integer(cx) function made(what, handle)
    character(*), intent(in) :: what
    integer(cx), intent(in) :: handle

    call make(what, handle)
    made = handle
  end function

end program
