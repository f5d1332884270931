! The penguins that procedures draw, and the statistics that they compute of them.
module penguin_cases
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use korva
  use least_squares, only: mean
  implicit none
  private
  public :: open_penguins, load_cases, deviation, box_of
  public :: species_number, island_number, sex_number, flipper_number, mass_number

  integer, parameter :: name_length = 16

  ! The variables of a run, in the order in which open_penguins names them, and the cells of
  ! a row that each takes: a text of nine letters takes two.
  integer, parameter :: species_number = 1, island_number = 2, sex_number = 3, &
    flipper_number = 4, mass_number = 5
  integer, parameter :: species_cells(2) = [1, 2], island_cells(2) = [3, 4], sex_cell = 5, &
    flipper_cell = 6, mass_cell = 7, row_cells = 7

  !> A column of names: case i has the name levels(code(i)).
  type, public :: factor
    integer :: number  !< of its variable
    character(name_length), allocatable :: levels(:)
    integer, allocatable :: labels(:)  !< of the levels, as string handles
    integer, allocatable :: code(:)
  end type

  interface
    subroutine dlasrt(id, n, d, info)
      import :: dp
      character, intent(in) :: id
      integer, intent(in) :: n
      real(dp), intent(inout) :: d(*)
      integer, intent(out) :: info
    end subroutine
  end interface

  !> The cases without missing values.
  type, public :: penguin_sample
    type(factor) :: species, island, sex
    real(dp), allocatable :: flipper(:), mass(:)
  end type

  !> The five numbers of a box plot: a hinge is the median of a half of the values.
  type, public :: box
    real(dp) :: low, lower_hinge, median, upper_hinge, high
  end type

contains

  ! Data

  !> Opens the data set that the command line names, data/penguins without one, and starts
  !> the library for several charts over it.
  subroutine open_penguins(observations, procedure_name)
    type(data_set), intent(inout) :: observations
    character(*), intent(in) :: procedure_name

    call open_observations(observations, procedure_name, otherwise='data/penguins', &
      names=[character(17) :: 'species', 'island', 'sex', 'flipper_length_mm', 'body_mass_g'], &
      numbers=flipper_number)
    call require(observations%cell_count() == row_cells, 'a column is of another width')
    call start_library(procedure_name, observations%dictionary)
  end subroutine

  !> Reads the complete cases. The library has to be started: it knows the labels of names.
  subroutine load_cases(observations, cases)
    type(data_set), intent(in) :: observations
    type(penguin_sample), intent(out) :: cases
    real(dp) :: cells(row_cells)
    integer :: rows, row, kept

    rows = observations%row_count()
    cases%species = new_factor(species_number, rows)
    cases%island = new_factor(island_number, rows)
    cases%sex = new_factor(sex_number, rows)
    allocate (cases%flipper(rows), cases%mass(rows))
    kept = 0
    do row = 1, rows
      call require(observations%read_row(row, cells), 'cannot read the data set')
      if (any(cells(flipper_cell:) <= missing_value())) cycle
      if (text_of_cells(cells([sex_cell])) == '') cycle
      kept = kept + 1
      call name_case(cases%species, kept, cells(species_cells))
      call name_case(cases%island, kept, cells(island_cells))
      call name_case(cases%sex, kept, cells([sex_cell]))
      cases%flipper(kept) = cells(flipper_cell)
      cases%mass(kept) = cells(mass_cell)
    end do
    call require(kept > 1, 'the data set has too few complete cases')
    cases%species%code = cases%species%code(:kept)
    cases%island%code = cases%island%code(:kept)
    cases%sex%code = cases%sex%code(:kept)
    cases%flipper = cases%flipper(:kept)
    cases%mass = cases%mass(:kept)
  end subroutine

  type(factor) function new_factor(number, rows)
    integer, intent(in) :: number, rows

    new_factor%number = number
    allocate (new_factor%levels(0), new_factor%labels(0), new_factor%code(rows))
  end function

  subroutine name_case(of, number, cells)
    type(factor), intent(inout) :: of
    integer, intent(in) :: number
    real(dp), intent(in) :: cells(:)
    character(name_length) :: level

    level = text_of_cells(cells)
    if (.not. any(of%levels == level)) then
      of%levels = [of%levels, level]
      of%labels = [of%labels, value_label(of%number, cells)]
    end if
    of%code(number) = findloc(of%levels, level, dim=1)
  end subroutine

  ! Statistics

  pure real(dp) function deviation(values)
    real(dp), intent(in) :: values(:)

    deviation = sqrt(sum((values - mean(values))**2)/(size(values) - 1))
  end function

  !> The numbers of a box plot of some values.
  function box_of(values) result(numbers)
    real(dp), intent(in) :: values(:)
    type(box) :: numbers
    real(dp) :: sorted(size(values))
    integer :: n, half, info

    sorted = values
    n = size(values)
    call dlasrt('I', n, sorted, info)
    call require(info == 0, 'cannot sort the values')
    half = (n + 1)/2
    numbers = box(sorted(1), median_of(sorted(:half)), median_of(sorted), &
      median_of(sorted(n - half + 1:)), sorted(n))
  end function

  pure real(dp) function median_of(sorted)
    real(dp), intent(in) :: sorted(:)
    integer :: n

    n = size(sorted)
    median_of = (sorted((n + 1)/2) + sorted(n/2 + 1))/2
  end function

end module
