! A refusal that nobody takes: it is told, with the call, and stops a program that asks for it.
program refusal
  use, intrinsic :: iso_fortran_env, only: error_unit
  use chartxml
  implicit none

  integer :: chart

  call new_chart('refusal', chart)
  call add_frame(chart, 99)
  call set_chart_template(chart, '')
  write (error_unit, '(a)') 'still here'
  call stop_when_refused(.true.)
  call set_frame_clipping(chart, -5, .true.)
  write (error_unit, '(a)') 'not reached'
end program
