! The entry points as Fortran has them.
!
! usage: fortran_calls <empty folder>
program fortran_calls
  use, intrinsic :: iso_fortran_env, only: int32, int64, real32, real64
  use chartxml
  use checks
  use korva, only: set_output
  implicit none

  integer, parameter :: document = 0
  integer :: chart, graph, data, source
  character(256) :: folder

  call get_command_argument(1, folder)
  call expect('the output folder is set', set_output(trim(folder)))
  call new_chart_with_frames('calls', chart, source=source, graph=graph, data=data)
  call test_kinds
  call test_texts
  call test_absent_arguments
  call test_outputs
  call test_refusals
  call test_answers
  call test_words
  call test_further_operations
  call test_columns
  call end_chart(chart)
  call test_what_was_sent
  call end_library
  call finish

contains

  !> A handle of either kind goes where any other goes.
  subroutine test_kinds
    integer(int64) :: wide, expected
    integer :: frame, coordinate

    call add_frame(chart, document, handle=wide)
    call add_frame(int(chart, int64), document, handle=frame)
    expected = wide + 1
    call expect('handles come in 32 and in 64 bits', int(frame, int64), expected)
    call add_table_facet(chart, wide, handle=coordinate)
    call add_nest(int(chart, kind=2), coordinate, handle=wide)
    call expect('kinds are mixed', wide, int(coordinate + 1, int64))
    call add_linear_fit(chart, frame, 1, 2.5_real32, handle=wide)
    call expect_fragment('numbers are of any kind', 'value="2.5 * x + 1"')
  end subroutine

  subroutine test_texts
    character(8) :: padded = 'ab'
    integer :: title

    call add_label(chart, graph, 'title', padded(:4))
    call expect_fragment('a text has its own length', 'id="label_title" style=')
    call expect_fragment('and keeps its blanks', '>ab  </label>')
    title = string_of('x  ')
    call expect('a text comes back', text_of(title), 'x  ')
    call expect('an empty one, too', text_of(string_of('')), '')
    call expect('a pattern is filled', text_of(composite_of('^1 of ^2', &
      [integer_string(1), integer_string(12_int64)])), '1 of 12')
    call expect('a list is filled', text_of(list_of('[%1:, ^1:]1', &
      [title, string_of('y'), real_string(0.5)])), 'x  , y, 0.5')
    call expect('a number is written in its format', &
      text_of(number_string(12.5_real64, 1, format_percent)), '12.5%')
  end subroutine

  subroutine test_absent_arguments
    integer :: axis, dimension

    call add_dimension_axis(chart, data, role_x, axis=axis, handle=dimension, lower_margin='5%')
    call expect_fragment('what is not given is not there', &
      '<dimension facetsShareScale="true" lowerMargin="5%" role="x">')
    call set_dimension_same_ratio(chart, dimension, .true.)
    call add_axis(chart, dimension, 'other', opposite=.true.)
    call expect_fragment('a logical is a logical', 'id="axis_other" opposite="true"')
  end subroutine

  subroutine test_outputs
    integer :: style, legend, stat

    style = -7
    legend = -7
    call add_legend_frame(chart, graph, 999, 1, style=style, legend=legend, stat=stat)
    call expect('outputs up to the step that failed are there', style > 156 .and. legend > 0)
    call expect_error('the step is told', 'element or guide handle (999) out of range (0-'// &
      decimal(legend + 1)//')')
    style = -7
    call add_legend_frame(chart, 999, 999, 1, style=style, legend=style, stat=stat)
    call expect_error('another step is told', &
      'parent handle (999) out of range (0-'//decimal(legend + 1)//')')
    legend = -7
    call add_dimension_axis(chart, data, 4, axis=legend, stat=stat)
    call expect('outputs of later steps are left alone', legend, -7)
    call expect('a silent refusal is one', stat, 1)
  end subroutine

  subroutine test_refusals
    integer :: handle, stat
    integer(int64) :: wide_stat
    character(24) :: short
    character(60) :: errmsg

    errmsg = 'as it was'
    stat = 7
    call add_frame(chart, document, handle=handle, stat=stat, errmsg=errmsg)
    call expect('what is done has stat 0', stat, 0)
    call expect('and leaves errmsg alone', trim(errmsg), 'as it was')

    call add_x(chart, graph, graph, handle=handle, stat=wide_stat, errmsg=errmsg)
    call expect('what is refused has another', wide_stat, 1_int64)
    call expect('and tells why', &
      trim(errmsg), 'can''t add x to anything but element or position - frame')
    call expect('the handle is -1', handle, -1)
    call expect_error('the log has it, too', trim(errmsg))
    call add_x(chart, graph, graph, stat=stat, errmsg=short)
    call expect('a short errmsg is cut', short, 'can''t add x to anything ')
    call expect_error('the log has it whole', trim(errmsg))
    call set_chart_type(chart, 3, stat=stat, errmsg=errmsg)
    call expect('a silent refusal tells no more', trim(errmsg), 'refused')

    call add_frame(chart, 1.5, handle=handle, stat=stat, errmsg=errmsg)
    call expect('an argument of another type is refused', trim(errmsg), 'parent is no integer')
    call expect('before anything is done', handle, -1)
    call expect_error('by name', 'parent is no integer')
    call add_linear_fit(chart, data, 1, .true., stat=stat, errmsg=errmsg)
    call expect_error('and so is a number', 'slope is no number')
    call add_splom_element(chart, data, [1.5, 2.5], stat=stat)
    call expect_error('or a list', 'variables are no integers')
    call add_frame(chart, document, handle=short, stat=stat)
    call expect_error('or an output', 'handle is no integer of 32 or 64 bits')

    call set_axis_percent(77, 3, 4, stat=stat)
    call expect('a report tells where no result can', stat, 1)
    call expect_error('and is the reason', 'chart handle (77) out of range (0-1)')
    call set_log_unsafe(chart, stat=stat)
    call expect('a result of -1 in every case is none', stat, 0)
  end subroutine

  subroutine test_answers
    integer :: stat

    call expect('nothing there is an answer', &
      get_facet_label(chart, only_labeling(), 9, stat=stat), -1)
    call expect('and no refusal', stat, 0)
    call expect('a bad node is one', get_facet_label(chart, data, 9, stat=stat), -1)
    call expect('with its reason', stat, 1)
    call expect_error('which is told', &
      'can''t get facet label from anything but facet labeling frame')
  end subroutine

  integer function only_labeling()
    call add_facet_labeling(chart, data, handle=only_labeling)
  end function

  !> The library's own tables are the measure.
  subroutine test_words
    integer, parameter :: some(*) = [string_axisx, string_point, string_tukey_inner_fence, &
      string_x_axis, string_controlchart_center_step_lcl, string_base, string_false, string_dot]
    character(*), parameter :: texts(*) = [character(26) :: 'axisx', 'point', &
      'tukeyInnerFence', 'X Axis', 'controlchart_Center_Step_L', 'base', 'false', 'dot']
    integer :: i

    do i = 1, size(some)
      call expect('a word is named', index(text_of(some(i)), trim(texts(i))) == 1)
    end do
    call expect('roles are named', all([role_x, role_y, role_z, role_r, role_theta, role_phi, &
      role_position] == [1, 2, 3, 4, 5, 6, 7]))
  end subroutine

  subroutine test_further_operations
    integer :: variable, element, size, meta, format

    call add_aggregate(chart, source, handle=variable)
    call add_element(chart, data, string_point, 'bubbles', handle=element)
    call add_size(chart, element, variable, handle=size)
    call set_size_low(chart, size, '2px')
    call add_r(chart, element, variable)
    call add_phi(chart, element, variable)
    call expect_fragment('an element has what the procedures cannot ask for', &
      '<size low="2px" variable="variable')
    call add_meta(chart, variable, handle=meta)
    call add_number_format_of_type(chart, meta, format_plain, 8, 2, handle=format)
    call set_number_format_suffix(chart, format, ' kg')
    call expect('a format is found', get_variable_num_format(chart, variable), format)
    call expect_fragment('and set', 'suffix=" kg"')
  end subroutine

  !> Every row has the number of its row.
  subroutine test_columns
    integer :: x, y, z, name, table(2), stat, i
    real(real64), allocatable :: numbers(:)
    real(real32) :: rows(6, 2)

    allocate (numbers, source=[(i/2.0_real64, i=1, 6)])
    call add_aggregate(chart, source, handle=x)
    call add_aggregate(chart, source, handle=y)
    call add_aggregate(chart, source, handle=z)
    call add_aggregate(chart, source, handle=name)
    call add_aggregate(chart, source, handle=table(1))
    call add_aggregate(chart, source, handle=table(2))
    call load(chart, x, numbers(2::2))
    call load(chart, y, [1_int64, 2_int64])
    call load(chart, y, [3.25_real32], first=3)
    call load(chart, z, [3, 2, 1])
    call load(chart, name, [character(6) :: 'a', ' b', '7'])
    rows(:, 1) = [(real(i), i=1, 6)]
    rows(:, 2) = -rows(:, 1)
    call load(chart, table, rows(6:2:-2, :))
    call load(chart, source, numbers, stat=stat)
    call expect('a column needs a variable', stat, 1)
    call expect_error('with its node', &
      'the node '//decimal(source)//' is no variable with a column')
    call load(chart, x, numbers, first=0, stat=stat)
    call expect_error('rows count from 1', 'no 6 rows from row 0 on: rows go from 1 to 2147483647')
    call load(chart, table(:1), rows, stat=stat)
    call expect_error('every column has its variable', 'not as many columns as variables')
  end subroutine

  subroutine test_what_was_sent
    character(*), parameter :: nl = new_line('')
    character(:), allocatable :: table

    call expect_error('what the document lacks is told', trim(folder)//'/0001-calls: '// &
      'variable13: it has no value in any of 3 rows; load its values, or leave it out '// &
      '(call 31, cx_addaggregate_)')
    table = contents(trim(folder)//'/0001-calls/source0.csv')
    table = table(index(table, nl) + 1:)
    call expect('columns are rows of the data', table, ',1,1,3,a,6,-6'//nl// &
      ',2,2,2, b,4,-4'//nl//',3,3.25,1,7,2,-2'//nl)
  end subroutine

  !> Looks for a part of the chart's document.
  subroutine expect_fragment(behaviour, fragment)
    character(*), intent(in) :: behaviour, fragment

    call expect(behaviour, index(document_of(chart), fragment) > 0)
  end subroutine

  function decimal(number)
    integer, intent(in) :: number
    character(:), allocatable :: decimal
    character(12) :: buffer

    write (buffer, '(i0)') number
    decimal = trim(buffer)
  end function

end program
