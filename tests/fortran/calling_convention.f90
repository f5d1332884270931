! How arguments and results cross between Fortran and the library, as the library has it.
!
! usage: calling_convention <empty folder>
program calling_convention
  use, intrinsic :: iso_c_binding, only: c_null_ptr, cx => c_int64_t, dp => c_double
  use chartxml
  use checks
  use korva, only: set_output
  implicit none

  integer(cx), parameter :: beyond_32_bits = 2_cx**32
  integer(cx), parameter :: absent = -1, ignored = 0, false = 0, true = 1
  integer(cx) :: chart, source, graph, data, made
  character(256) :: folder

  call get_command_argument(1, folder)
  call expect('the output folder is set', set_output(trim(folder)))

  made = cx_createchartex(c_null_ptr, c_null_ptr, 'convention', 10_cx, chart, source, graph, data)
  call expect('outputs are handles of 64 bits', all([source, graph, data] == [1, 2, 3]))
  call test_integers
  call test_logicals
  call test_reals
  call test_texts
  call test_arrays
  call expect('the chart is sent', cx_endchart(chart), 0_cx)
  call test_what_was_sent
  call expect('the library ends', cx_terminate(), 0_cx)
  call finish

contains

  subroutine test_integers
    integer(cx) :: style, axis, outputs(2)

    call expect('only the low 32 bits of a handle count', &
      cx_setframeclipping(chart + beyond_32_bits, graph + beyond_32_bits, true), graph)

    call expect('a failure is -1 in 64 bits', cx_addx(chart, graph, graph), -1_cx)
    call expect_error('its reason can be taken', &
      'can''t add x to anything but element or position - frame')

    style = 17; axis = 18
    call expect('a skeleton entry point compares all 64 bits', cx_adddimensionaxis(chart, data, &
      1 + beyond_32_bits, absent, false, style, axis, absent, absent, absent, absent), -1_cx)
    outputs = [style, axis]
    call expect('and leaves its outputs alone when it does nothing', all(outputs == [17, 18]))

    chart = chart + 1
    call expect('outputs up to the failing step are filled', cx_adddimensionaxis(chart, data, &
      1_cx, absent, false, style, axis, absent, absent, absent, absent), -1_cx)
    outputs = [style, axis]
    call expect('and later ones are left alone', style > 156 .and. axis == 18)
    call expect_error('the missing chart is named', 'chart with this handle not found 1')
    chart = chart - 1
  end subroutine

  !> What clips is seen in the document that is sent: see test_what_was_sent.
  subroutine test_logicals
    call expect('any number but 0 is true', cx_setframeclipping(chart, data, -7_cx), data)
    call expect('0 is false', cx_setframeclipping(chart, graph, 0_cx), graph)
  end subroutine

  subroutine test_reals
    call expect('a number becomes a text', cx_double(0.1_dp) > 156)
    call expect('the system-missing value does not', cx_double(-huge(1.0_dp)), -1_cx)
  end subroutine

  subroutine test_texts
    character(*), parameter :: padded = '[ab  ]not this'

    made = cx_addlabel(chart, data, absent, cx_string(ignored, padded, 6_cx))
    call expect('a text of no length is empty', cx_setcharttemplate(chart, 'bars', 0_cx), -1_cx)
    call expect('and so is one of negative length', &
      cx_setcharttemplate(chart, 'bars', -4_cx), -1_cx)
    made = cx_addlabel(chart, graph, absent, cx_string(ignored, 'Größe <1', 10_cx))
  end subroutine

  subroutine test_arrays
    integer(cx) :: variables(4), i, element, made

    do i = 1, size(variables)
      variables(i) = cx_addaggregate(chart, source, absent, false, absent, absent, absent) &
        + beyond_32_bits
    end do
    made = cx_addsplomelement(chart, data, variables(4:1:-2), 2_cx, element)
    call expect('a strided array crosses', made > 0 .and. made == element)
  end subroutine

  subroutine test_what_was_sent
    character(:), allocatable :: document

    document = contents(trim(folder)//'/0001-convention/chart.xml')
    call expect('a text has the given length, trailing blanks included', &
      index(document, '>[ab  ]</label>') > 0)
    call expect('the variables of an array come in order', &
      index(document, 'expression="variable9/variable9label + variable7/variable7label" '// &
      'id="variable10"') > 0)
    call expect('bytes beyond ASCII arrive', index(document, '>Größe &lt;1</label>') > 0)
    call expect('a logical other than 0 clips', &
      index(document, '<frame clip="true" id="frame_data_1"') > 0)
    call expect('a logical of 0 does not', &
      index(document, '<frame clip="false" id="frame_graph_1"') > 0)
  end subroutine

end program
