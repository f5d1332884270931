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
    integer :: row

    cases%species = new_factor(species_number)
    cases%island = new_factor(island_number)
    cases%sex = new_factor(sex_number)
    allocate (cases%flipper(0), cases%mass(0))
    do row = 1, observations%row_count()
      call require(observations%read_row(row, cells), 'cannot read the data set')
      if (any(cells(flipper_cell:) <= missing_value())) cycle
      if (text_of_cells(cells([sex_cell])) == '') cycle
      call add_name(cases%species, cells(species_cells))
      call add_name(cases%island, cells(island_cells))
      call add_name(cases%sex, cells([sex_cell]))
      cases%flipper = [cases%flipper, cells(flipper_cell)]
      cases%mass = [cases%mass, cells(mass_cell)]
    end do
    call require(size(cases%mass) > 1, 'the data set has too few complete cases')
  end subroutine

  type(factor) function new_factor(number)
    integer, intent(in) :: number

    new_factor%number = number
    allocate (new_factor%levels(0), new_factor%labels(0), new_factor%code(0))
  end function

  subroutine add_name(to, cells)
    type(factor), intent(inout) :: to
    real(dp), intent(in) :: cells(:)
    character(name_length) :: level

    level = text_of_cells(cells)
    if (.not. any(to%levels == level)) then
      to%levels = [to%levels, level]
      to%labels = [to%labels, value_label(to%number, cells)]
    end if
    to%code = [to%code, findloc(to%levels, level, dim=1)]
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
    integer :: n, half

    sorted = in_order(values)
    n = size(values)
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

  pure function in_order(values) result(sorted)
    real(dp), intent(in) :: values(:)
    real(dp) :: sorted(size(values)), value
    integer :: i, j

    sorted = values
    do i = 2, size(sorted)
      value = sorted(i)
      do j = i - 1, 1, -1
        if (sorted(j) <= value) exit
        sorted(j + 1) = sorted(j)
      end do
      sorted(j + 1) = value
    end do
  end function

end module
