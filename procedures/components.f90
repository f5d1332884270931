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
  use grouped_cases
  use korva
  use least_squares, only: mean
  implicit none

  character(*), parameter :: procedure_name = 'components'
  integer, parameter :: measures = 4, shown = 3

  ! The variables of this run: the species, then the measures.
  integer(cx), parameter :: species = 1

  !> The principal components, the largest first.
  type :: analysis
    real(dp) :: share(measures)            !< of the variance
    real(dp), allocatable :: scores(:, :)  !< of a case, of a component
  end type

  !> The chart and the nodes that several steps refer to.
  type :: drawing
    integer(cx) :: chart, source, graph, data
    integer(cx) :: species  !< a variable
  end type

  ! Eigenvalues, in ascending order, and eigenvectors of a symmetric matrix (LAPACK).
  interface
    subroutine dsyev(jobz, uplo, n, a, lda, w, work, lwork, info)
      import :: dp
      character, intent(in) :: jobz, uplo
      integer, intent(in) :: n, lda, lwork
      real(dp), intent(inout) :: a(lda, *)
      real(dp), intent(out) :: w(*), work(*)
      integer, intent(out) :: info
    end subroutine
  end interface

  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(analysis) :: found
    type(drawing) :: first, second, third

    ! All charts come first: as long as one is open, the library keeps the groups' names.
    call open_observations(observations, procedure_name, otherwise='data/penguins', &
      names=[character(17) :: 'species', 'bill_length_mm', 'bill_depth_mm', &
      'flipper_length_mm', 'body_mass_g'], numbers=2_cx)
    first = new_drawing(observations)
    second = new_drawing(observations)
    third = new_drawing(observations)
    call load_sample(observations, measures, cases)
    found = components_of(cases%values)

    call draw_measures(first, cases)
    call draw_scores(second, cases, found)
    call draw_plane(third, cases, found)
    call require(cx_terminate() >= 0, 'cannot end the chart library')
    call observations%close()
  end subroutine

  ! Estimation

  function components_of(values) result(found)
    real(dp), intent(in) :: values(:, :)
    type(analysis) :: found
    real(dp) :: standardized(size(values, 1), measures), vectors(measures, measures)
    real(dp) :: variances(measures), work(64*measures), spread
    integer :: m, info

    do m = 1, measures
      spread = sqrt(sum((values(:, m) - mean(values(:, m)))**2)/(size(values, 1) - 1))
      call require(spread > 0, 'no components: a measure has one value only')
      standardized(:, m) = (values(:, m) - mean(values(:, m)))/spread
    end do
    vectors = matmul(transpose(standardized), standardized)/(size(values, 1) - 1)
    call dsyev('V', 'U', measures, vectors, measures, variances, work, size(work), info)
    call require(info == 0, 'the eigenvalue problem has no solution')

    ! Either direction is a solution: the largest weight is to be positive.
    vectors = vectors(:, measures:1:-1)
    do m = 1, measures
      vectors(:, m) = sign(1.0_dp, vectors(maxloc(abs(vectors(:, m)), dim=1), m))*vectors(:, m)
    end do
    found = analysis(share=variances(measures:1:-1)/measures, &
      scores=matmul(standardized, vectors))
  end function

  ! The charts

  subroutine draw_measures(plot, cases)
    type(drawing), intent(inout) :: plot
    type(sample), intent(in) :: cases
    integer(cx) :: variables(measures), points
    integer :: m

    variables = [(declared_variable(plot%chart, plot%source, species + m, false), m=1, measures)]
    call fill_rows(plot, cases, variables, cases%values)
    call make('the matrix', cx_addsplomelement(plot%chart, plot%data, variables, &
      size(variables, kind=cx), points))
    call color_by_species(plot, points)
    call write_text(plot%chart, plot%graph, word_title, translated('Measures of penguins'))
    call send_chart(plot%chart, translated('Description of measures'))
  end subroutine

  !> Scores crowd less than measures do: they get less room around them.
  subroutine draw_scores(plot, cases, found)
    type(drawing), intent(inout) :: plot
    type(sample), intent(in) :: cases
    type(analysis), intent(in) :: found
    integer(cx) :: variables(shown), points, margin

    variables = score_variables(plot, shown)
    call fill_rows(plot, cases, variables, found%scores(:, :shown))
    margin = made('a margin', text('8%'))
    call make('the matrix', cx_addsplomelementex(plot%chart, plot%data, variables, &
      size(variables, kind=cx), points, margin, margin, margin, margin, absent, absent, absent, &
      absent))
    call color_by_species(plot, points)
    call write_text(plot%chart, plot%graph, word_title, translated('Principal components'))
    call write_text(plot%chart, plot%graph, word_footnote, shares_text(found))
    call send_chart(plot%chart, translated('Description of scores'))
  end subroutine

  !> The first two components on scales from -m to m, with lines at 0.
  subroutine draw_plane(plot, cases, found)
    type(drawing), intent(inout) :: plot
    type(sample), intent(in) :: cases
    type(analysis), intent(in) :: found
    integer(cx) :: variables(2), points, domain, zero, x_style, x_axis, y_style, y_axis
    real(dp) :: reach

    variables = score_variables(plot, 2)
    call fill_rows(plot, cases, variables, found%scores(:, :2))

    reach = ceiling(maxval(abs(found%scores(:, :2))))
    domain = made('a domain', cx_adddomain(plot%chart, ignored, ignored, false, absent))
    call make('its range', &
      cx_addintervalex(plot%chart, domain, cx_double(-reach), cx_double(reach)))
    call make('its values', cx_adddomainreference(plot%chart, domain, variables(1)))
    call make('its values', cx_adddomainreference(plot%chart, domain, variables(2)))
    call make('the axes', cx_addxydimaxiswithsameratio(plot%chart, plot%data, domain, domain, &
      false, false, true, x_style, x_axis, y_style, y_axis))
    call title_axis(plot%chart, x_axis, x_style, component_name(1))
    call title_axis(plot%chart, y_axis, y_style, component_name(2))

    call make('the points', cx_addxyelementex(plot%chart, plot%data, 1_cx, word_point, &
      variables(1), variables(2), word_scatter, points))
    call color_by_species(plot, points)
    zero = made('a text', cx_double(0.0_dp))
    call make('a line', cx_addxreferenceline(plot%chart, plot%data, zero, 1_cx))
    call make('a line', cx_addyreferenceline(plot%chart, plot%data, zero, 1_cx))
    call write_text(plot%chart, plot%graph, word_title, translated('Principal components'))
    call write_text(plot%chart, plot%graph, word_footnote, shares_text(found))
    call send_chart(plot%chart, translated('Description of plane'))
  end subroutine

  ! What the charts have in common

  type(drawing) function new_drawing(observations) result(plot)
    type(data_set), intent(in) :: observations

    plot%chart = made('a chart', create_chart(observations%dictionary, procedure_name, &
      plot%source, plot%graph, plot%data))
    plot%species = declared_variable(plot%chart, plot%source, species, true)
    call make('the names of the species', cx_addrelabels(plot%chart, plot%species, species))
  end function

  function score_variables(plot, count) result(variables)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: count
    integer(cx) :: variables(count)
    integer :: i

    variables = [(computed_variable(plot%chart, plot%source, component_name(i), &
      display_format(plain_format, 6, 1)), i=1, count)]
  end function

  subroutine fill_rows(plot, cases, variables, numbers)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    integer(cx), intent(in) :: variables(:)
    real(dp), intent(in) :: numbers(:, :)
    integer :: i

    do i = 1, size(cases%group)
      call store_group(plot%chart, plot%source, plot%species, cases, i)
      call store_numbers(plot%chart, plot%source, variables, numbers(i, :))
    end do
  end subroutine

  subroutine color_by_species(plot, points)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: points
    integer(cx) :: colors, legend, style

    colors = made('the colors of the points', &
      cx_addstylebycolor(plot%chart, points, plot%species))
    call make('the legend', cx_addlegendframeex(plot%chart, plot%graph, points, 1_cx, colors, &
      style, legend))
    call title_axis(plot%chart, legend, style, variable_label(species))
  end subroutine

  ! Texts

  function component_name(i) result(string)
    integer, intent(in) :: i
    integer(cx) :: string

    string = composed('Component^1', [number_text(real(i, dp), 0)])
  end function

  function shares_text(found) result(string)
    type(analysis), intent(in) :: found
    integer(cx) :: string, lines(shown)
    integer :: i

    do i = 1, shown
      lines(i) = composed('Share of a component^2', &
        [component_name(i), number_text(100*found%share(i), 1, percent_format)])
    end do
    string = listed(one_a_line, lines)
  end function

end program
