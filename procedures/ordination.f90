! Which of the United States are alike in their crimes, and what goes with them?
!
! usage: ordination [data set]
!
! Draws a biplot of the principal components of four standardized measures, with a point for
! each state and a line for each measure, and a triplot of the redundancy analysis of three
! kinds of crimes by five measures of the states: the principal components of what linear
! regressions on those measures predict. Scores have variance 1; lines are correlations with
! the scores, longer by a factor that the subtitle tells. The data set is a data package or
! a CSV file with these columns; data/states below the working directory when none is named.
program ordination
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings, only: drawing, name_element, new_drawing
  use korva
  use least_squares, only: fitted_coefficients
  use named_cases
  use principal_axes
  implicit none

  character(*), parameter :: procedure_name = 'ordination'

  ! The variables of this run: the first is a text in one cell, measures start at the third.
  integer, parameter :: state = 1, region = 2, width = 10
  integer, parameter :: longest_name = 80
  integer, parameter :: crimes(3) = [3, 4, 5], conditions(5) = [6, 7, 8, 9, 10]

  !> The complete cases.
  type :: sample
    character(bytes_per_cell), allocatable :: state(:)
    real(dp), allocatable :: region(:)
    real(dp), allocatable :: values(:, :)  !< standardized; of a case, of a variable of the run
  end type

  !> What one of the charts shows.
  type :: view
    character(:), allocatable :: title, subtitle, description, measures  !< keys of texts
    integer :: points, lines   !< kinds of style
    logical :: has_conditions  !< and lines for them
  end type

  type, extends(drawing) :: plane_plot
    real(dp) :: reach(2)   !< of the scores, on either side of 0
    real(dp) :: lengthening
  end type

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    integer, parameter :: urban = 6

    call open_observations(observations, procedure_name, otherwise='data/states', &
      names=[character(12) :: 'abbreviation', 'region', 'murder', 'assault', 'rape', 'urban', &
      'income', 'illiteracy', 'graduates', 'frost'], numbers=region)
    call load_cases(observations, cases)

    call draw(observations, cases, axes_of(cases%values(:, [crimes, urban])), [crimes, urban], &
      view(title='Crimes and cities', subtitle='Explained by components^3', &
      description='Description of the biplot', measures='Measures', points=string_biplot_point, &
      lines=string_biplot_line, has_conditions=.false.))
    call draw(observations, cases, redundancy(cases), crimes, &
      view(title='Crimes and their conditions', subtitle='Explained by conditions^4', &
      description='Description of the triplot', measures='Crimes', points=string_triplot_point, &
      lines=string_triplot_line, has_conditions=.true.))
    call end_library
    call observations%close()
  end subroutine

  ! Data

  subroutine load_cases(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(out) :: cases
    real(dp), allocatable :: numbers(:, :)

    call require(observations%cell_count() == width, 'the abbreviation is no text of one cell')
    call read_named(observations, 1, cases%state, numbers)
    call require(size(cases%state) > width, 'the data set has too few complete cases')
    cases%region = numbers(:, region - state)
    allocate (cases%values(size(cases%state), width))
    cases%values(:, crimes(1):) = standardized(numbers(:, crimes(1) - state:))
  end subroutine

  ! Estimation

  !> The principal components of what the conditions predict of the crimes.
  function redundancy(cases) result(found)
    type(sample), intent(in) :: cases
    type(axes) :: found
    real(dp) :: predicted(size(cases%region), size(crimes))
    integer :: i

    ! The measures are standardized: no constant is needed.
    associate (design => cases%values(:, conditions))
      do i = 1, size(crimes)
        predicted(:, i) = matmul(design, fitted_coefficients(design, cases%values(:, crimes(i))))
      end do
    end associate
    found = axes_of(predicted)
  end function

  ! The charts

  subroutine draw(observations, cases, found, measures, shown)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(axes), intent(in) :: found
    integer, intent(in) :: measures(:)
    type(view), intent(in) :: shown
    type(plane_plot) :: plot

    plot%drawing = new_drawing(observations, procedure_name)
    plot%reach = 0.5_dp*ceiling(2*maxval(abs(found%scores), dim=1) + 1)
    plot%lengthening = max(1, floor(minval(plot%reach) - 0.5_dp)) ! names need room
    call draw_plane(plot)
    call draw_points(plot, cases, found, shown)
    call draw_lines(plot, measures, correlations(cases%values(:, measures), found%scores), &
      shown%lines, 1, shown%measures)
    if (shown%has_conditions) call draw_lines(plot, conditions, &
      correlations(cases%values(:, conditions), found%scores), shown%lines, 2, 'Conditions')
    call write_texts_and_send(plot, found, shown)
  end subroutine

  !> Axes with units of one length that cross in the middle.
  subroutine draw_plane(plot)
    type(plane_plot), intent(in) :: plot
    integer :: domains(2), x_style, x_axis, y_style, y_axis, zero, i

    do i = 1, 2
      call add_domain(plot%chart, handle=domains(i))
      call add_interval_ex(plot%chart, real_string(-plot%reach(i)), real_string(plot%reach(i)), &
        domains(i))
    end do
    call add_xy_dimensions_with_same_ratio(plot%chart, plot%data, domains(1), domains(2), &
      same_ratio=.true., x_style=x_style, x_axis=x_axis, y_style=y_style, y_axis=y_axis)
    call add_label(plot%chart, x_axis, x_style, axis_name(1))
    call add_label(plot%chart, y_axis, y_style, axis_name(2))
    zero = real_string(0)
    call add_x_reference_line(plot%chart, plot%data, zero, guide_style=1)
    call add_y_reference_line(plot%chart, plot%data, zero, guide_style=1)
  end subroutine

  !> A point for each state, with its abbreviation.
  subroutine draw_points(plot, cases, found, shown)
    type(plane_plot), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(axes), intent(in) :: found
    type(view), intent(in) :: shown
    integer :: states, regions, scores(2), points, colors, legend, style

    call add_labeling_variable(plot%chart, plot%source, state, categorical=.true., handle=states)
    call add_variable(plot%chart, plot%source, region, categorical=.true., handle=regions)
    call add_relabels(plot%chart, regions, region)
    scores = axis_variables(plot, plot%source)
    call load(plot%chart, states, cases%state)
    call load(plot%chart, regions, cases%region)
    call load(plot%chart, scores, found%scores)

    call add_xy_element(plot%chart, plot%data, 1, string_point, scores(1), scores(2), &
      shown%points, points)
    call add_style_by_color(plot%chart, points, regions, handle=colors)
    call add_labeling(plot%chart, points, states)
    call add_legend_frame_of(plot%chart, plot%graph, points, 1, style_by_node=colors, &
      style=style, legend=legend)
    call add_label(plot%chart, legend, style, label_of_variable(region))
  end subroutine

  !> A line from the middle for each measure; the names stand beyond the ends of the lines,
  !> where an element that is hidden has them.
  subroutine draw_lines(plot, measures, correlation, kind, index, name)
    type(plane_plot), intent(in) :: plot
    integer, intent(in) :: measures(:), kind, index
    real(dp), intent(in) :: correlation(:, :)  !< of a measure, with an axis
    character(*), intent(in) :: name           !< a key of the string table
    character(longest_name) :: names(size(measures))
    real(dp), dimension(size(measures), 2) :: middle, ends, beyond
    integer :: lines, labels, by, i

    middle = 0
    ends = plot%lengthening*correlation
    do i = 1, size(measures)
      names(i) = text_of(label_of_variable(measures(i)))
      beyond(i, :) = place_beyond(plot, ends(i, :), len_trim(names(i)))
    end do
    call add_places(plot, [names, names], reshape([transpose(middle), transpose(ends)], &
      [2*size(names), 2], order=[2, 1]), index, string_line, kind, lines, by)
    call add_split(plot%chart, lines, by)
    call name_element(plot%drawing, lines, name, index + 1)
    call add_places(plot, names, beyond, index, string_point, string_hiddenline, labels, by)
    call add_labeling(plot%chart, labels, by)
  end subroutine

  !> An element of rows of their own, each with a name and a place.
  subroutine add_places(plot, names, places, index, type, kind, element, by)
    type(plane_plot), intent(in) :: plot
    character(*), intent(in) :: names(:)
    real(dp), intent(in) :: places(:, :)
    integer, intent(in) :: index, type, kind
    integer, intent(out) :: element, by  !< by the names
    integer :: source, at(2)

    call add_source(plot%chart, handle=source)
    call add_aggregate(plot%chart, source, categorical=.true., label=translation('Variable'), &
      handle=by)
    at = axis_variables(plot, source)
    call load(plot%chart, by, names)
    call load(plot%chart, at, places)
    call add_xy_element(plot%chart, plot%data, index, type, at(1), at(2), kind, element)
  end subroutine

  !> Where the middle of a name stands that begins beyond the end of a line: half a letter is
  !> as wide as this share of the plot's half.
  pure function place_beyond(plot, tip, letters) result(place)
    type(plane_plot), intent(in) :: plot
    real(dp), intent(in) :: tip(2)
    integer, intent(in) :: letters
    real(dp), parameter :: half_letter = 0.013_dp, gap = 0.03_dp
    real(dp) :: place(2), direction(2)

    direction = tip/max(norm2(tip), tiny(1.0_dp))
    place = tip + plot%reach(1)*(gap + half_letter*letters*abs(direction(1)))*direction
  end function

  function axis_variables(plot, source) result(variables)
    type(plane_plot), intent(in) :: plot
    integer, intent(in) :: source
    integer :: variables(2), i

    do i = 1, 2
      call add_aggregate(plot%chart, source, label=axis_name(i), handle=variables(i))
      call set_variable_format(plot%chart, variables(i), packed_format(format_plain, 6, 1))
    end do
  end function

  ! Texts

  function axis_name(i) result(string)
    integer, intent(in) :: i
    integer :: string

    string = composite_of('Axis^1', [number_string(i, 0)])
  end function

  subroutine write_texts_and_send(plot, found, shown)
    type(plane_plot), intent(in) :: plot
    type(axes), intent(in) :: found
    type(view), intent(in) :: shown

    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, translation(shown%title))
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of(shown%subtitle, [percent(found%share(1)), percent(found%share(2)), &
      number_string(plot%lengthening, 0), percent(found%explained)]))
    call set_chart_description(plot%chart, translation(shown%description))
    call end_chart(plot%chart)
  end subroutine

  function percent(share) result(string)
    real(dp), intent(in) :: share
    integer :: string

    string = number_string(100*share, 1, format_percent)
  end function

end program
