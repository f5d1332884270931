! Cases of several measures that a text, such as a species, puts into groups.
module grouped_cases
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use korva
  implicit none
  private
  public :: load_sample, load_groups

  !> The first variable of the run is the group, the others are the measures.
  integer, parameter :: group_variable = 1

  type, public :: case_group
    character(:), allocatable :: text, label
    integer :: name  !< the label as a string handle of the chart library
  end type

  !> The cases without missing values; case i is values(i, :) and belongs to groups(group(i)).
  type, public :: sample
    real(dp), allocatable :: values(:, :)
    integer, allocatable :: group(:)
    type(case_group), allocatable :: groups(:)
  end type

contains

  !> Reads the cases and drops those with a missing value. A chart has to be open: with it
  !> the library learns of the data.
  subroutine load_sample(observations, measures, cases)
    type(data_set), intent(in) :: observations
    integer, intent(in) :: measures
    type(sample), intent(out) :: cases
    real(dp), allocatable :: cells(:)
    integer :: row, width, kept

    allocate (cells(observations%cell_count()))
    width = size(cells) - measures
    allocate (cases%values(observations%row_count(), measures))
    allocate (cases%group(observations%row_count()), cases%groups(0))

    kept = 0
    do row = 1, observations%row_count()
      call require(observations%read_row(row, cells), 'cannot read the data set')
      if (any(cells(width + 1:) <= missing_value())) cycle
      if (text_of_cells(cells(:width)) == '') cycle
      kept = kept + 1
      cases%values(kept, :) = cells(width + 1:)
      call find_group(cells(:width), cases%groups, cases%group(kept))
    end do
    call require(kept > 0, 'the data set has no complete case')
    cases%values = cases%values(:kept, :)
    cases%group = cases%group(:kept)
  end subroutine

  !> Finds the group of a text; one that was not met before is added.
  subroutine find_group(text_cells, groups, found)
    real(dp), intent(in) :: text_cells(:)
    type(case_group), allocatable, intent(inout) :: groups(:)
    integer, intent(out) :: found
    type(case_group) :: new

    do found = 1, size(groups)
      if (groups(found)%text == text_of_cells(text_cells)) return
    end do
    found = size(groups) + 1
    new%text = text_of_cells(text_cells)
    new%name = value_label(group_variable, text_cells)
    new%label = text_of(new%name)
    groups = [groups, new]
  end subroutine

  !> Stores the label of each case's group in a variable.
  subroutine load_groups(chart, variable, cases)
    integer, intent(in) :: chart, variable
    type(sample), intent(in) :: cases
    character(longest_label(cases%groups)) :: labels(size(cases%groups))
    integer :: g

    do g = 1, size(labels)
      labels(g) = cases%groups(g)%label
    end do
    call load(chart, variable, labels(cases%group))
  end subroutine

  pure integer function longest_label(groups)
    type(case_group), intent(in) :: groups(:)
    integer :: g

    longest_label = maxval([(len(groups(g)%label), g=1, size(groups))])
  end function

end module
