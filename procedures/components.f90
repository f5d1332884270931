! How do four measures of penguins hang together, and how many numbers tell them?
!
! usage: components [data set]
!
! Draws the measures as a matrix of scatterplots, the scores of their first three principal
! components likewise, and the first two in units of one length. The components are those
! of the standardized measures. The data set is a data package or a CSV file with these
! columns; data/penguins below the working directory when none is named.
program components
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings, only: drawing, new_drawing
  use grouped_cases
  use korva
  use principal_axes
  implicit none

  character(*), parameter :: procedure_name = 'components'
  integer, parameter :: measures = 4, shown = 3

  ! The variables of this run: the species, then the measures.
  integer, parameter :: species = 1

  !> The principal components, the largest first.
  type :: analysis
    real(dp) :: share(measures)            !< of the variance
    real(dp), allocatable :: scores(:, :)  !< of a case, of a component
  end type

  !> The chart and the nodes that several steps refer to.
  type, extends(drawing) :: penguin_plot
    integer :: species  !< a variable
  end type

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(analysis) :: found
    type(penguin_plot) :: first, second, third

    ! All charts come first: as long as one is open, the library keeps the groups' names.
    call open_observations(observations, procedure_name, otherwise='data/penguins', &
      names=[character(17) :: 'species', 'bill_length_mm', 'bill_depth_mm', 'flipper_length_mm', &
      'body_mass_g'], numbers=2)
    first = new_plot(observations)
    second = new_plot(observations)
    third = new_plot(observations)
    call load_sample(observations, measures, cases)
    found = components_of(cases%values)

    call draw_measures(first, cases)
    call draw_scores(second, cases, found)
    call draw_plane(third, cases, found)
    call end_library
    call observations%close()
  end subroutine

  ! Estimation

  function components_of(values) result(found)
    real(dp), intent(in) :: values(:, :)
    type(analysis) :: found
    real(dp) :: scores(size(values, 1), measures), vectors(measures, measures)
    real(dp) :: variances(measures)

    scores = standardized(values)
    call decompose(matmul(transpose(scores), scores)/(size(values, 1) - 1), variances, vectors)
    found = analysis(share=variances/measures, scores=matmul(scores, vectors))
  end function

  ! The charts

  subroutine draw_measures(plot, cases)
    type(penguin_plot), intent(inout) :: plot
    type(sample), intent(in) :: cases
    integer :: variables(measures), points, m

    do m = 1, measures
      call add_variable(plot%chart, plot%source, species + m, handle=variables(m))
    end do
    call load_columns(plot, cases, variables, cases%values)
    call add_splom_element(plot%chart, plot%data, variables, points)
    call color_by_species(plot, points)
    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, &
      translation('Measures of penguins'))
    call set_chart_description(plot%chart, translation('Description of measures'))
    call end_chart(plot%chart)
  end subroutine

  !> Scores crowd less than measures do: they get less room around them.
  subroutine draw_scores(plot, cases, found)
    type(penguin_plot), intent(inout) :: plot
    type(sample), intent(in) :: cases
    type(analysis), intent(in) :: found
    character(*), parameter :: margin = '8%'
    integer :: variables(shown), points

    variables = score_variables(plot, shown)
    call load_columns(plot, cases, variables, found%scores(:, :shown))
    call add_splom_element_with_margins(plot%chart, plot%data, variables, points, &
      x_upper_margin=margin, x_lower_margin=margin, y_upper_margin=margin, y_lower_margin=margin)
    call color_by_species(plot, points)
    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, &
      translation('Principal components'))
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, shares_text(found))
    call set_chart_description(plot%chart, translation('Description of scores'))
    call end_chart(plot%chart)
  end subroutine

  !> The first two components on scales from -m to m, with lines at 0.
  subroutine draw_plane(plot, cases, found)
    type(penguin_plot), intent(inout) :: plot
    type(sample), intent(in) :: cases
    type(analysis), intent(in) :: found
    integer :: variables(2), points, domain, zero, x_style, x_axis, y_style, y_axis
    real(dp) :: reach

    variables = score_variables(plot, 2)
    call load_columns(plot, cases, variables, found%scores(:, :2))

    reach = ceiling(maxval(abs(found%scores(:, :2))))
    call add_domain(plot%chart, handle=domain)
    call add_interval_ex(plot%chart, real_string(-reach), real_string(reach), domain)
    call add_domain_reference(plot%chart, variables(1), domain)
    call add_domain_reference(plot%chart, variables(2), domain)
    call add_xy_dimensions_with_same_ratio(plot%chart, plot%data, domain, domain, &
      same_ratio=.true., x_style=x_style, x_axis=x_axis, y_style=y_style, y_axis=y_axis)
    call add_label(plot%chart, x_axis, x_style, component_name(1))
    call add_label(plot%chart, y_axis, y_style, component_name(2))

    call add_xy_element(plot%chart, plot%data, 1, string_point, variables(1), variables(2), &
      string_scatter, points)
    call color_by_species(plot, points)
    zero = real_string(0)
    call add_x_reference_line(plot%chart, plot%data, zero, guide_style=1)
    call add_y_reference_line(plot%chart, plot%data, zero, guide_style=1)
    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, &
      translation('Principal components'))
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, shares_text(found))
    call set_chart_description(plot%chart, translation('Description of plane'))
    call end_chart(plot%chart)
  end subroutine

  ! What the charts have in common

  type(penguin_plot) function new_plot(observations) result(plot)
    type(data_set), intent(in) :: observations

    plot%drawing = new_drawing(observations, procedure_name)
    call add_variable(plot%chart, plot%source, species, categorical=.true., handle=plot%species)
    call add_relabels(plot%chart, plot%species, species)
  end function

  function score_variables(plot, count) result(variables)
    type(penguin_plot), intent(in) :: plot
    integer, intent(in) :: count
    integer :: variables(count), i

    do i = 1, count
      call add_aggregate(plot%chart, plot%source, label=component_name(i), handle=variables(i))
      call set_variable_format(plot%chart, variables(i), packed_format(format_plain, 6, 1))
    end do
  end function

  subroutine load_columns(plot, cases, variables, numbers)
    type(penguin_plot), intent(in) :: plot
    type(sample), intent(in) :: cases
    integer, intent(in) :: variables(:)
    real(dp), intent(in) :: numbers(:, :)

    call load_groups(plot%chart, plot%species, cases)
    call load(plot%chart, variables, numbers)
  end subroutine

  subroutine color_by_species(plot, points)
    type(penguin_plot), intent(in) :: plot
    integer, intent(in) :: points
    integer :: colors, legend, style

    call add_style_by_color(plot%chart, points, plot%species, handle=colors)
    call add_legend_frame_of(plot%chart, plot%graph, points, 1, style_by_node=colors, &
      style=style, legend=legend)
    call add_label(plot%chart, legend, style, label_of_variable(species))
  end subroutine

  ! Texts

  function component_name(i) result(string)
    integer, intent(in) :: i
    integer :: string

    string = composite_of('Component^1', [number_string(i, 0)])
  end function

  function shares_text(found) result(string)
    type(analysis), intent(in) :: found
    integer :: string, lines(shown), i

    do i = 1, shown
      lines(i) = composite_of('Share of a component^2', [component_name(i), &
        number_string(100*found%share(i), 1, format_percent)])
    end do
    string = list_of(one_a_line, lines)
  end function

end program
