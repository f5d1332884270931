! Which of the United States are alike, and how many groups of them are there?
!
! usage: clusters [data set]
!
! Joins the states, step by step, by the average distance between their standardized measures
! (agglomerative clustering, average linkage). Draws the steps as an icicle plot, upright and
! lying, and the distance at which each step joins two clusters. The data set is a data
! package or a CSV file with these columns; data/states below the working directory when
! none is named.
program clusters
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings, only: computed, draw_axes, drawing, new_drawing
  use korva
  use named_cases
  use principal_axes, only: standardized
  implicit none

  character(*), parameter :: procedure_name = 'clusters'
  integer, parameter :: name_cells = 2, measures = 4, shown = 5  !< shown: clusters by color

  ! Types of charts that the output treats in a way of their own.
  integer, parameter :: icicle_upright = 1, icicle_lying = 2

  !> The states with values of every measure.
  type :: sample
    character(name_cells*bytes_per_cell), allocatable :: state(:)
    real(dp), allocatable :: values(:, :)
  end type

  !> The steps of a clustering, and the cases so that each cluster stands together.
  type :: tree
    real(dp), allocatable :: distance(:)  !< of the clusters that a step joins
    integer, allocatable :: order(:)      !< cases
    !> Of the case at a place and the one after it: the most clusters that have them together.
    integer, allocatable :: together(:)
  end type

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(tree) :: found

    call open_observations(observations, procedure_name, otherwise='data/states', &
      names=[character(7) :: 'state', 'murder', 'assault', 'rape', 'urban'], numbers=2)
    call load_cases(observations, cases)
    found = joined(distances(standardized(cases%values)))

    call start_library(procedure_name, observations%dictionary)
    call draw_icicles(observations, cases, found, icicle_upright)
    call draw_icicles(observations, cases, found, icicle_lying)
    call draw_distances(observations, found)
    call end_library
    call observations%close()
  end subroutine

  ! Data

  subroutine load_cases(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(out) :: cases

    call require(observations%cell_count() == name_cells + measures, &
      'a column is of another width')
    call read_named(observations, name_cells, cases%state, cases%values)
    call require(size(cases%state) > shown, 'the data set has too few complete cases')
  end subroutine

  ! Estimation

  pure function distances(scores)
    real(dp), intent(in) :: scores(:, :)
    real(dp) :: distances(size(scores, 1), size(scores, 1))
    integer :: i, j

    do concurrent(i=1:size(scores, 1), j=1:size(scores, 1))
      distances(i, j) = norm2(scores(i, :) - scores(j, :))
    end do
  end function

  !> Joins the two nearest clusters until there is one. A cluster goes by its first case; its
  !> cases are a chain, and joining puts one chain behind the other.
  pure function joined(between) result(found)
    real(dp), intent(in) :: between(:, :)  !< distances of cases
    type(tree) :: found
    real(dp) :: apart(size(between, 1), size(between, 1))
    integer, dimension(size(between, 1)) :: members, last, next, most
    logical :: is_cluster(size(between, 1))
    integer :: n, step, pair(2), i

    n = size(between, 1)
    apart = between
    members = 1
    last = [(i, i=1, n)]
    is_cluster = .true.
    allocate (found%distance(n - 1))
    do step = 1, n - 1
      pair = nearest(apart, is_cluster)
      associate (a => pair(1), b => pair(2))
        found%distance(step) = apart(a, b)
        apart(a, :) = (members(a)*apart(a, :) + members(b)*apart(b, :))/(members(a) + members(b))
        apart(:, a) = apart(a, :)
        members(a) = members(a) + members(b)
        is_cluster(b) = .false.
        next(last(a)) = b
        most(last(a)) = n - step
        last(a) = last(b)
      end associate
    end do

    found%order = [(1, i=1, n)]
    do i = 2, n
      found%order(i) = next(found%order(i - 1))
    end do
    found%together = most(found%order(:n - 1))
  end function

  !> The two clusters nearest to each other, the one that begins earlier first.
  pure function nearest(apart, is_cluster) result(pair)
    real(dp), intent(in) :: apart(:, :)
    logical, intent(in) :: is_cluster(:)
    integer :: pair(2), i, j
    real(dp) :: least

    least = huge(least)
    do i = 1, size(is_cluster)
      do j = i + 1, size(is_cluster)
        if (.not. (is_cluster(i) .and. is_cluster(j)) .or. apart(i, j) >= least) cycle
        least = apart(i, j)
        pair = [i, j]
      end do
    end do
  end function

  ! The charts

  !> A bar for each case, and one between two neighbours down to the number of clusters that
  !> still has them together. Places are numbered; those between cases have no name.
  subroutine draw_icicles(observations, cases, found, chart_type)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(tree), intent(in) :: found
    integer, intent(in) :: chart_type
    type(drawing) :: plot
    integer :: places, count, clusters, bars, colors, of(2*size(found%order) - 1), place, domain

    plot = new_drawing(observations, procedure_name, 'States that are alike', &
      'Description of icicles')
    call set_chart_type(plot%chart, chart_type)
    call add_aggregate(plot%chart, plot%source, categorical=.true., &
      label=label_of_variable(1), handle=places)
    count = computed(plot, 'Number of clusters', 0)
    call add_aggregate(plot%chart, plot%source, categorical=.true., &
      label=composite_of('Clusters^1', [number_string(shown, 0)]), handle=clusters)
    of = clusters_of_places(found)
    do place = 1, size(of)
      call add_row(plot%chart)
      call add_double_data_value(plot%chart, places, place)
      call add_double_data_value(plot%chart, count, bar_of_place(found, place))
      call add_double_data_value(plot%chart, clusters, of(place))
      if (modulo(place, 2) == 0) then
        call add_relabel(plot%chart, places, integer_string(place), ' ')
      else
        call add_relabel(plot%chart, places, integer_string(place), &
          trim(cases%state(found%order((place + 1)/2))))
      end if
    end do
    call add_relabel(plot%chart, clusters, integer_string(shown + 1), translation('Joined later'))

    call add_domain(plot%chart, handle=domain)
    call add_interval_ex(plot%chart, integer_string(0), integer_string(size(found%order)), domain)
    call add_domain_reference(plot%chart, count, domain)
    call draw_axes(plot, label_of_variable(1), translation('Number of clusters'))
    associate (y => get_dimension(plot%chart, plot%data, role_y))
      call set_dimension_domain(plot%chart, y, domain)
      if (chart_type == icicle_upright) &
        call set_dimension_scale(plot%chart, y, string_of('linear'), real_string(1), &
        invert=.true.)
    end associate
    call add_xy_element(plot%chart, plot%data, 1, string_interval, places, count, &
      string_areabar, bars)
    call add_style_by_color(plot%chart, bars, clusters, handle=colors)
    call add_legend_frame_of(plot%chart, plot%graph, bars, 1, style_by_node=colors)
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      translation('About the clusters'))
    call end_chart(plot%chart)
  end subroutine

  !> How far the bar at a place reaches: that of a case to the number of cases.
  pure integer function bar_of_place(found, place) result(length)
    type(tree), intent(in) :: found
    integer, intent(in) :: place

    length = size(found%order)
    if (modulo(place, 2) == 0) length = found%together(place/2)
  end function

  !> The number of each place's cluster, when there are as many as are shown; places between
  !> two of them have the number after the last.
  pure function clusters_of_places(found) result(of)
    type(tree), intent(in) :: found
    integer :: of(2*size(found%order) - 1), i

    of(1) = 1
    do i = 1, size(found%together)
      of(2*i) = of(2*i - 1)
      of(2*i + 1) = of(2*i - 1)
      if (found%together(i) >= shown) cycle
      of(2*i) = shown + 1
      of(2*i + 1) = of(2*i - 1) + 1
    end do
  end function

  !> The distance of the two clusters that leave each number of clusters when they are joined.
  subroutine draw_distances(observations, found)
    type(data_set), intent(in) :: observations
    type(tree), intent(in) :: found
    type(drawing) :: plot
    integer :: count, distance, line, points, guide, i

    plot = new_drawing(observations, procedure_name, 'Distances of joined clusters', &
      'Description of distances')
    count = computed(plot, 'Number of clusters', 0)
    distance = computed(plot, 'Distance of the joined clusters', 1)
    call load(plot%chart, count, [(i, i=size(found%distance), 1, -1)])
    call load(plot%chart, distance, found%distance)

    call draw_axes(plot, translation('Number of clusters'), &
      translation('Distance of the joined clusters'))
    call add_x_reference_line(plot%chart, plot%data, integer_string(shown), guide_style=1, &
      handle=guide)
    call set_element_name(plot%chart, guide, composite_of('Clusters^1', [number_string(shown, 0)]))
    call add_legend_frame_of(plot%chart, plot%graph, guide, 1)
    call add_xy_element(plot%chart, plot%data, 1, string_line, count, distance, &
      string_simpleline, line)
    call add_xy_element(plot%chart, plot%data, 1, string_point, count, distance, &
      string_scatter, points)
    call end_chart(plot%chart)
  end subroutine

end program
