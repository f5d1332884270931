! How old are the people of the United States, and how does that change?
!
! usage: population [data set]
!
! Draws a population pyramid for each year: bars of men to the left and of women to the right
! for classes of five years of age, with the median age and shares of the young and the old.
! The data set, split by year, is a data package or a CSV file with these columns;
! data/us_population below the working directory when none is named.
program population
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings, only: computed, drawing, new_drawing
  use korva
  implicit none

  character(*), parameter :: procedure_name = 'population'
  integer, parameter :: class_width = 5, oldest = 100
  real(dp), parameter :: million = 1e6_dp

  ! The variables of this run, in the order in which they are opened, and codes of the sex.
  integer, parameter :: year = 1, sex = 2, age = 3, persons = 4
  integer, parameter :: men = 1, women = 2

  !> The persons of a year by their age and sex.
  type :: census
    integer :: year
    real(dp) :: persons(0:oldest, 2)
  end type

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(census), allocatable :: years(:)
    integer :: i, reach

    call open_observations(observations, procedure_name, otherwise='data/us_population', &
      names=[character(7) :: 'year', 'sex', 'age', 'persons'], numbers=1)
    call require(observations%split_by([observations%find_column('year')]), 'cannot split by year')
    call load_cases(observations, years)

    ! All years have the same scale: two pyramids that lie side by side can be compared.
    reach = 2*ceiling(maxval([(maxval(classes_of(years(i))), i=1, size(years))])/2)
    call start_library(procedure_name, observations%dictionary)
    do i = 1, size(years)
      call draw(observations, years(i), reach)
    end do
    call end_library
    call observations%close()
  end subroutine

  ! Data

  subroutine load_cases(observations, years)
    type(data_set), intent(in) :: observations
    type(census), allocatable, intent(out) :: years(:)
    real(dp) :: cells(4)
    integer :: row, i

    allocate (years(0))
    do row = 1, observations%row_count()
      call require(observations%read_row(row, cells), 'cannot read the data set')
      if (any(cells <= missing_value())) cycle
      call require(any(nint(cells(sex)) == [men, women]), 'a sex is not 1 or 2')
      call require(cells(age) >= 0 .and. cells(persons) >= 0, 'an age or a count is below zero')
      i = findloc(years%year, nint(cells(year)), dim=1)
      if (i == 0) then
        years = [years, census(nint(cells(year)), 0.0_dp)]
        i = size(years)
      end if
      associate (there => years(i)%persons(min(int(cells(age)), oldest), nint(cells(sex))))
        there = there + cells(persons)
      end associate
    end do
    call require(size(years) > 0, 'the data set has no complete case')
    do i = 1, size(years)
      call require(all(sum(years(i)%persons, dim=1) > 0), 'a year has persons of one sex only')
    end do
  end subroutine

  ! Statistics

  !> Millions of persons by class of age and sex; the last class has all from `oldest` on.
  pure function classes_of(counted) result(classes)
    type(census), intent(in) :: counted
    real(dp) :: classes(0:oldest/class_width, 2)
    integer :: class

    do class = 0, oldest/class_width - 1
      classes(class, :) = sum(counted%persons(class*class_width:(class + 1)*class_width - 1, :), &
        dim=1)/million
    end do
    classes(oldest/class_width, :) = counted%persons(oldest, :)/million
  end function

  !> The age that as many have reached as have not, when birthdays are spread evenly.
  pure real(dp) function median_age(counted)
    type(census), intent(in) :: counted
    real(dp) :: by_age(0:oldest), younger
    integer :: a

    by_age = sum(counted%persons, dim=2)
    younger = 0
    do a = 0, oldest
      if (younger + by_age(a) >= sum(by_age)/2) exit
      younger = younger + by_age(a)
    end do
    median_age = a + (sum(by_age)/2 - younger)/by_age(a)
  end function

  !> Persons of some ages in percent of all.
  pure real(dp) function share(counted, from, to)
    type(census), intent(in) :: counted
    integer, intent(in) :: from, to

    share = 100*sum(counted%persons(from:to, :))/sum(counted%persons)
  end function

  ! The chart

  subroutine draw(observations, counted, reach)
    type(data_set), intent(in) :: observations
    type(census), intent(in) :: counted
    integer, intent(in) :: reach
    type(drawing) :: plot
    integer :: ages, sexes, millions, bars, colors, legend, style

    plot = new_drawing(observations, procedure_name, 'Population by age and sex', &
      'Description of a pyramid')
    call add_aggregate(plot%chart, plot%source, categorical=.true., label=label_of_variable(age), &
      handle=ages)
    call add_variable(plot%chart, plot%source, sex, categorical=.true., handle=sexes)
    call add_relabels(plot%chart, sexes, sex)
    millions = computed(plot, 'Persons (millions)', 2)
    call fill_classes(plot, counted, ages, sexes, millions)
    call draw_axes(plot, ages, millions, reach)

    call add_xy_element(plot%chart, plot%data, 1, string_interval, millions, ages, &
      string_areabar, bars)
    call add_style_by_color(plot%chart, bars, sexes, handle=colors)
    call add_legend_frame_of(plot%chart, plot%graph, bars, 1, style_by_node=colors, style=style, &
      legend=legend)
    call add_label(plot%chart, legend, style, label_of_variable(sex))
    call write_texts_and_send(plot, counted)
  end subroutine

  !> Men count below zero, so that their bars go to the left; labels show them as they are.
  subroutine fill_classes(plot, counted, ages, sexes, millions)
    type(drawing), intent(in) :: plot
    type(census), intent(in) :: counted
    integer, intent(in) :: ages, sexes, millions
    real(dp) :: classes(0:oldest/class_width, 2)
    integer :: class, code

    classes = classes_of(counted)
    do class = 0, ubound(classes, 1)
      call add_relabel(plot%chart, ages, integer_string(class*class_width), name_of(class))
      call add_relabel(plot%chart, millions, real_string(-classes(class, men)), &
        number_string(classes(class, men), 2))
      do code = men, women
        call add_row(plot%chart)
        call add_double_data_value(plot%chart, ages, class*class_width)
        call add_double_data_value(plot%chart, sexes, code)
        call add_double_data_value(plot%chart, millions, &
          merge(-1, 1, code == men)*classes(class, code))
      end do
    end do
  end subroutine

  !> "5 - 9"
  function name_of(class) result(string)
    integer, intent(in) :: class
    integer :: string, first

    first = class*class_width
    if (first == oldest) then
      string = composite_of('From an age^1', [number_string(first, 0)])
    else
      string = composite_of('From age to age^2', [number_string(first, 0), &
        number_string(first + class_width - 1, 0)])
    end if
  end function

  subroutine draw_axes(plot, ages, millions, reach)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: ages, millions, reach
    integer :: x_domain, y_domain, x_style, x_axis, y_style, y_axis, i

    do i = -reach, reach
      call add_relabel(plot%chart, millions, integer_string(i), number_string(abs(i), 0))
    end do
    call add_domain(plot%chart, handle=x_domain)
    call add_interval_ex(plot%chart, integer_string(-reach), integer_string(reach), x_domain)
    call add_domain_reference(plot%chart, millions, x_domain)
    ! Categories go from the top to the bottom, ages the other way.
    call add_domain(plot%chart, categorical=.true., handle=y_domain)
    call add_domain_reference(plot%chart, ages, y_domain)
    call set_domain_descending(plot%chart, .true., y_domain)
    call add_xy_dimensions(plot%chart, plot%data, x_domain, y_domain, x_style=x_style, &
      x_axis=x_axis, y_style=y_style, y_axis=y_axis, x_upper_margin='0%', x_lower_margin='0%')
    call add_label(plot%chart, x_axis, x_style, translation('Persons (millions)'))
    call add_label(plot%chart, y_axis, y_style, label_of_variable(age))
  end subroutine

  subroutine write_texts_and_send(plot, counted)
    type(drawing), intent(in) :: plot
    type(census), intent(in) :: counted
    integer, parameter :: adult = 20, old = 65
    real(dp) :: split_cells(1)

    split_cells = counted%year
    call add_split_header(plot%chart, plot%graph, split_cells)
    call set_split_composite(plot%chart, split_cells)
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      composite_of('Ages of a population^5', [number_string(sum(counted%persons)/million, 1), &
      number_string(median_age(counted), 1), percent(share(counted, 0, adult - 1)), &
      percent(share(counted, old, oldest)), &
      number_string(100*sum(counted%persons(:, men))/sum(counted%persons(:, women)), 1)]))
    call end_chart(plot%chart)
  end subroutine

  function percent(value) result(string)
    real(dp), intent(in) :: value
    integer :: string

    string = number_string(value, 1, format_percent)
  end function

end program
