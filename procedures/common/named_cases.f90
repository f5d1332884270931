! Cases that each have a name of their own.
module named_cases
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts, only: require
  use korva
  implicit none
  private
  public :: read_named

contains

  !> Reads the names, which the first variable of the run has in so many cells, and the numbers
  !> of the others; numbers(i, v) belongs to names(i). Cases without one of them are dropped.
  subroutine read_named(observations, name_cells, names, numbers)
    type(data_set), intent(in) :: observations
    integer, intent(in) :: name_cells
    character(*), allocatable, intent(out) :: names(:)
    real(dp), allocatable, intent(out) :: numbers(:, :)
    real(dp), allocatable :: cells(:)
    integer :: row, kept

    allocate (cells(observations%cell_count()))
    allocate (names(observations%row_count()))
    allocate (numbers(observations%row_count(), size(cells) - name_cells))
    kept = 0
    do row = 1, observations%row_count()
      call require(observations%read_row(row, cells), 'cannot read the data set')
      if (any(cells(name_cells + 1:) <= missing_value())) cycle
      kept = kept + 1
      names(kept) = text_of_cells(cells(:name_cells))
      numbers(kept, :) = cells(name_cells + 1:)
    end do
    names = names(:kept)
    numbers = numbers(:kept, :)
  end subroutine

end module
