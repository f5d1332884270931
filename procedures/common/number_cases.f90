! Cases of variables that are all numbers.
module number_cases
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts, only: open_observations, require
  use chartxml, only: start_library
  use korva
  implicit none
  private
  public :: load_numbers, read_numbers, is_present

contains

  !> Opens the data set that the command line names, else data/<otherwise>, starts the library
  !> for several charts and reads the columns of these names; cases(i, v) is variable v of
  !> case i. Cases without a value in one of the first `needed` columns, or in any, are
  !> dropped.
  subroutine load_numbers(observations, procedure_name, otherwise, names, cases, needed)
    type(data_set), intent(inout) :: observations
    character(*), intent(in) :: procedure_name, otherwise, names(:)
    real(dp), allocatable, intent(out) :: cases(:, :)
    integer, intent(in), optional :: needed

    call open_observations(observations, procedure_name, 'data/'//otherwise, names, numbers=1)
    call start_library(procedure_name, observations%dictionary)
    call read_numbers(observations, cases, needed)
  end subroutine

  !> The same of a data set that is open.
  subroutine read_numbers(observations, cases, needed)
    type(data_set), intent(in) :: observations
    real(dp), allocatable, intent(out) :: cases(:, :)
    integer, intent(in), optional :: needed
    real(dp), allocatable :: cells(:)
    integer :: row, kept, checked

    allocate (cells(observations%cell_count()))
    checked = size(cells)
    if (present(needed)) checked = needed
    allocate (cases(observations%row_count(), size(cells)))
    kept = 0
    do row = 1, size(cases, 1)
      call require(observations%read_row(row, cells), 'cannot read the data set')
      if (.not. all(is_present(cells(:checked)))) cycle
      kept = kept + 1
      cases(kept, :) = cells
    end do
    call require(kept > 0, 'the data set has no complete case')
    cases = cases(:kept, :)
  end subroutine

  impure elemental logical function is_present(value)
    real(dp), intent(in) :: value

    is_present = value > missing_value()
  end function

end module
