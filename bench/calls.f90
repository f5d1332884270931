! An element named again and again from Fortran: by the entry points as they are, and as
! Fortran has them.
module calls
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use chartxml
  implicit none
  private

  character(*), parameter :: name = 'Body mass (g)'

contains

  subroutine name_by_entry_points(chart, element, times) bind(C)
    integer(c_int64_t), intent(in) :: chart, element, times
    integer(c_int64_t) :: i, named

    do i = 1, times
      named = cx_setelementname(chart, element, cx_string(0_c_int64_t, name, len(name, c_int64_t)))
    end do
  end subroutine

  subroutine name_by_texts(chart, element, times) bind(C)
    integer(c_int64_t), intent(in) :: chart, element, times
    integer(c_int64_t) :: i

    do i = 1, times
      call set_element_name(chart, element, name)
    end do
  end subroutine

end module
