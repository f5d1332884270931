! What procedures use beside module chartxml: their data set, the command line, and a short way
! to stop when something does not hold.
module charts
  use, intrinsic :: iso_fortran_env, only: error_unit
  use chartxml
  use korva, only: data_set
  implicit none
  private
  public :: open_observations, require

  !> Pattern of list_of: each item on a line of its own.
  character(*), parameter, public :: one_a_line = '[%1:\n^1:]1'

contains

  !> Opens the data set that the command line names, else the one at `otherwise`; variable v
  !> of the run is the column names(v), and from `numbers` on they have to be numbers or dates.
  subroutine open_observations(observations, procedure_name, otherwise, names, numbers)
    type(data_set), intent(inout) :: observations
    character(*), intent(in) :: procedure_name, otherwise, names(:)
    integer, intent(in) :: numbers
    character(:), allocatable :: path
    integer :: columns(size(names)), v

    path = first_argument(otherwise)
    call require(observations%open(path), 'cannot open the data set '//path)
    columns = [(observations%find_column(trim(names(v))), v=1, size(names))]
    call require(all(columns > 0), 'this is not the data set that was expected')
    call require(observations%use_variables(columns), 'cannot use the variables')
    call require_numbers(observations, procedure_name, numbers, size(names))
  end subroutine

  !> A row's cells would not tell a text from a number; the display format does, which a
  !> chart knows.
  subroutine require_numbers(observations, procedure_name, first, last)
    type(data_set), intent(in) :: observations
    character(*), intent(in) :: procedure_name
    integer, intent(in) :: first, last
    integer :: chart, variable

    call new_chart(procedure_name, chart, observations%dictionary)
    do variable = first, last
      call require(type_of_format(get_variable_format(chart, variable)) /= format_text, &
        'a column is not of numbers')
    end do
    call kill_chart(chart)
  end subroutine

  !> Stops the program with `otherwise` and exit code 1 when a condition does not hold.
  subroutine require(condition, otherwise)
    logical, intent(in) :: condition
    character(*), intent(in) :: otherwise

    if (condition) return
    write (error_unit, '(a)') otherwise
    stop 1, quiet=.true.
  end subroutine

  function first_argument(otherwise) result(argument)
    character(*), intent(in) :: otherwise
    character(:), allocatable :: argument
    integer :: length

    argument = otherwise
    if (command_argument_count() == 0) return
    call get_command_argument(1, length=length)
    deallocate (argument)
    allocate (character(length) :: argument)
    call get_command_argument(1, argument)
  end function

end module
