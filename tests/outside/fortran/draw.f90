! Penguins by flipper length and body mass, drawn from Fortran.
!
! usage: draw <the penguins' data package>
program draw
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
  use, intrinsic :: iso_fortran_env, only: error_unit
  use chartxml
  use korva, only: data_set, missing_value
  implicit none

  type(data_set) :: penguins
  integer :: chart, source, graph, data, x, y
  integer :: failures = 0

  call stop_when_refused(.true.)
  call open_penguins
  call new_chart_with_frames('outside', chart, penguins%dictionary, source=source, &
    graph=graph, data=data)
  call try_conventions

  call add_variable(chart, source, 1, handle=x)
  call add_variable(chart, source, 2, handle=y)
  call load_columns
  call add_xy_dimensions_with_axes(chart, data)
  call add_xy_element(chart, data, 1, string_point, x, y, string_scatter)
  call add_label(chart, graph, content='[ab  ]')

  call end_chart(chart)
  call end_library
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

  !> What the library's own calls promise, and then the others.
  subroutine try_conventions
    integer(c_int64_t), parameter :: above = 2_c_int64_t**32, none = -1, no = 0
    integer(c_int64_t) :: document, frame, style, axis, outputs(2)
    integer :: stat
    character(80) :: errmsg

    document = chart
    frame = data
    call expect('a failure is -1 in 64 bits', &
      cx_addx(document, int(graph, c_int64_t), int(graph, c_int64_t)) == -1)
    call expect('only the low 32 bits of a handle count, and any number but 0 is true', &
      cx_setframeclipping(document + above, frame, -7_c_int64_t) == data)
    style = 17; axis = 18
    call expect('an entry point of several steps compares all 64', cx_adddimensionaxis(document, &
      frame, 1 + above, none, no, style, axis, none, none, none, none) == -1)
    outputs = [style, axis]
    call expect('and leaves its outputs alone', all(outputs == [17, 18]))
    call expect('a text is as long as its length says', &
      text_of(cx_string(no, '[ab  ]not this', 6_c_int64_t)) == '[ab  ]')

    call add_x(chart, graph, graph, stat=stat, errmsg=errmsg)
    call expect('a call with stat= goes on and tells why', stat == 1 .and. errmsg /= '')
  end subroutine

  !> A case is drawn when neither of its numbers is missing.
  subroutine load_columns
    real(c_double) :: cells(2)
    real(c_double), allocatable :: cases(:, :)
    integer :: row, kept

    allocate (cases(penguins%row_count(), 2))
    kept = 0
    do row = 1, penguins%row_count()
      if (.not. penguins%read_row(row, cells)) stop 1
      if (any(cells <= missing_value())) cycle
      kept = kept + 1
      cases(kept, :) = cells
    end do
    call load(chart, [x, y], cases(:kept, :))
  end subroutine

  subroutine expect(behaviour, holds)
    character(*), intent(in) :: behaviour
    logical, intent(in) :: holds

    if (holds) return
    failures = failures + 1
    write (error_unit, '(2a)') 'FAILED: ', behaviour
  end subroutine

end program
