! A program whose integers and logicals have 64 bits by default.
program wide_integers
  use chartxml
  use korva, only: take_error
  implicit none

  integer :: chart, data, source, element, variables(2), stat
  character(:), allocatable :: document, message

  call new_chart_with_frames('wide', chart, source=source, data=data)
  call add_aggregate(chart, source, categorical=.true., handle=variables(1))
  call add_aggregate(chart, source, handle=variables(2))
  call add_xy_element(chart, data, 1, string_point, variables(1), variables(2), string_scatter, &
    element=element)
  call add_splom_element(chart, data, variables(2:1:-1))
  call set_frame_clipping(chart, data, .true.)
  call load(chart, variables(1), [1, 2, 3], first=2)
  call set_variable_format(chart, variables(2), packed_format(format_plain, 8, 2))
  call set_element_name(chart, element, number_string(7, 1))
  document = document_of(chart)
  if (index(document, 'clip="true" id="frame_data_1"') == 0) stop 1
  if (index(document, 'name="7.0"') == 0) stop 2
  if (index(document, 'expression="variable5/variable5label + variable4') == 0) stop 3
  call add_frame(chart, -9, stat=stat)
  if (stat /= 1) stop 4
  if (.not. take_error(message)) stop 5
  if (message /= 'parent handle (-9) out of range (0-38)') stop 6
  ! The end of a main program frees nothing.
  deallocate (document, message)
end program
