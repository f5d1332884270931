! Counts what a test program finds wrong and tells it.
module checks
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use, intrinsic :: iso_fortran_env, only: error_unit
  use korva, only: take_error
  implicit none
  private
  public :: contents, expect, expect_error, finish

  interface expect
    module procedure expect_true, expect_integer, expect_default, expect_text
  end interface

  integer :: failures = 0

contains

  subroutine expect_true(behaviour, holds)
    character(*), intent(in) :: behaviour
    logical, intent(in) :: holds

    if (holds) return
    failures = failures + 1
    write (error_unit, '(2a)') 'FAILED: ', behaviour
  end subroutine

  subroutine expect_integer(behaviour, actual, expected)
    character(*), intent(in) :: behaviour
    integer(c_int64_t), intent(in) :: actual, expected

    call expect_true(behaviour, actual == expected)
    if (actual /= expected) write (error_unit, '(2(a, i0))') '  got ', actual, ' for ', expected
  end subroutine

  subroutine expect_default(behaviour, actual, expected)
    character(*), intent(in) :: behaviour
    integer, intent(in) :: actual, expected

    call expect_integer(behaviour, int(actual, c_int64_t), int(expected, c_int64_t))
  end subroutine

  subroutine expect_text(behaviour, actual, expected)
    character(*), intent(in) :: behaviour, actual, expected
    logical :: same

    same = len(actual) == len(expected) .and. actual == expected
    call expect_true(behaviour, same)
    if (.not. same) write (error_unit, '(5a)') '  got "', actual, '" for "', expected, '"'
  end subroutine

  !> The oldest error that was not taken yet.
  subroutine expect_error(behaviour, expected)
    character(*), intent(in) :: behaviour, expected
    character(:), allocatable :: message

    if (.not. take_error(message)) message = ''
    call expect_text(behaviour, message, expected)
  end subroutine

  !> The bytes of a file; none when it can't be read.
  function contents(path) result(bytes)
    character(*), intent(in) :: path
    character(:), allocatable :: bytes
    character(512) :: padded  ! gfortran's library looks at one byte past a name
    integer :: unit, size, status

    bytes = ''
    padded = path
    open (newunit=unit, file=padded, access='stream', form='unformatted', status='old', &
      action='read', iostat=status)
    if (status /= 0) return
    inquire (unit=unit, size=size)
    deallocate (bytes)
    allocate (character(size) :: bytes)
    read (unit) bytes
    close (unit)
  end function

  !> Ends the program; exit code 1 when anything was wrong.
  subroutine finish()
    character(:), allocatable :: message

    do while (take_error(message))
      call expect_text('no error is left over', message, '')
    end do
    if (failures > 0) stop 1, quiet=.true.
  end subroutine

end module
