! How do the states of the United States differ from one part of the country to another?
!
! usage: regions [data set]
!
! Draws how many states each division has as bars, population by region as box plots whose
! outliers are named, and life expectancy against illiteracy in a panel for each division
! within its region. The data set is a data package or a CSV file with these columns;
! data/regions below the working directory when none is named.
program regions
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings
  use grouped_cases
  use korva
  use least_squares, only: mean
  implicit none

  character(*), parameter :: procedure_name = 'regions'

  ! The variables of this run, in the order in which they are opened, and the measures among
  ! the values of a case.
  integer, parameter :: region = 2, division = 3, population = 4, life = 5, illiteracy = 6
  integer, parameter :: measures = 5

  type(data_set) :: observations
  type(sample) :: states  !< each a group of its own, which has its name

  call stop_when_refused(.true.)
  call open_observations(observations, procedure_name, otherwise='data/regions', &
    names=[character(15) :: 'state', 'region', 'division', 'population', 'life_expectancy', &
    'illiteracy'], numbers=region)
  call start_library(procedure_name, observations%dictionary)
  call load_sample(observations, measures, states)
  call draw_numbers
  call draw_boxes
  call draw_panels
  call end_library
  call observations%close()

contains

  !> A bar for each division, the longest first, with its number of states.
  subroutine draw_numbers
    type(drawing) :: plot
    integer :: divisions, numbers, domain, sort, bars
    integer :: codes(size(states%group)), i

    plot = new_drawing(observations, procedure_name, 'States of each division', &
      'Description of bars')
    divisions = categories(plot, division)
    numbers = computed(plot, 'States', 0)
    codes = nint(column(division))
    do i = minval(codes), maxval(codes)
      if (.not. any(codes == i)) cycle
      call add_row(plot%chart)
      call add_double_data_value(plot%chart, divisions, i)
      call add_double_data_value(plot%chart, numbers, count(codes == i))
    end do

    call add_domain(plot%chart, categorical=.true., handle=domain)
    call add_sort(plot%chart, domain, handle=sort)
    call set_sort_descending(plot%chart, sort, .true.)
    call add_statistic_sort(plot%chart, sort, divisions, numbers)
    call draw_axes(plot, label_of_variable(division), translation('States'), x_domain=domain)
    call add_xy_element(plot%chart, plot%data, 1, string_interval, divisions, numbers, &
      string_simplebar, bars)
    call add_labeling(plot%chart, bars, numbers)
    call end_chart(plot%chart)
  end subroutine

  !> A box for each region. Outliers and extremes stand with the names of their states.
  subroutine draw_boxes
    type(drawing) :: plot
    integer :: areas, persons, names, boxes

    plot = new_drawing(observations, procedure_name, 'Population of the states', &
      'Description of boxes')
    areas = categories(plot, region)
    call add_variable(plot%chart, plot%source, population, handle=persons)
    names = state_names(plot)
    call load(plot%chart, [areas, persons], states%values(:, [region, population] - 1))
    call load_groups(plot%chart, names, states)
    call draw_axes(plot, label_of_variable(region), label_of_variable(population))
    call add_xy_element(plot%chart, plot%data, 1, string_schema, areas, persons, &
      string_boxplot, boxes)
    call add_labeling(plot%chart, boxes, names)
    call end_chart(plot%chart)
  end subroutine

  !> A column for each division, below the region that it is part of.
  subroutine draw_panels
    type(drawing) :: plot
    integer :: areas, divisions, readers, years, names, facet, nest, points

    plot = new_drawing(observations, procedure_name, 'Life expectancy and illiteracy', &
      'Description of panels')
    areas = categories(plot, region)
    divisions = categories(plot, division)
    call add_variable(plot%chart, plot%source, illiteracy, handle=readers)
    call add_variable(plot%chart, plot%source, life, handle=years)
    names = state_names(plot)
    call load(plot%chart, [areas, divisions, readers, years], &
      states%values(:, [region, division, illiteracy, life] - 1))
    call load_groups(plot%chart, names, states)

    call add_table_facet(plot%chart, plot%data, handle=facet)
    call add_nest(plot%chart, facet, handle=nest)
    call add_facet_variable(plot%chart, nest, role_x, areas)
    call add_facet_variable(plot%chart, nest, role_x, divisions)
    call draw_axes(plot, label_of_variable(illiteracy), label_of_variable(life))
    call add_xy_element(plot%chart, plot%data, 1, string_point, readers, years, &
      string_scatter, points)
    call add_style_by_color(plot%chart, points, areas)
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of('Correlation of all states^2', [number_string( &
      correlation(column(illiteracy), column(life)), 2), &
      number_string(size(states%group), 0)]))
    call end_chart(plot%chart)
  end subroutine

  !> The values of a variable of this run, a number for each state.
  function column(variable) result(values)
    integer, intent(in) :: variable
    real(dp) :: values(size(states%group))

    values = states%values(:, variable - 1)
  end function

  pure real(dp) function correlation(x, y)
    real(dp), intent(in) :: x(:), y(:)

    associate (from_x => x - mean(x), from_y => y - mean(y))
      correlation = dot_product(from_x, from_y)/sqrt(sum(from_x**2)*sum(from_y**2))
    end associate
  end function

  function state_names(plot) result(names)
    type(drawing), intent(in) :: plot
    integer :: names

    call add_labeling_aggregate(plot%chart, plot%source, categorical=.true., &
      label=label_of_variable(1), handle=names)
  end function

end program
