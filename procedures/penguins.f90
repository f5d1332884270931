! Are penguins with longer flippers heavier, and is it the same in every species?
!
! usage: penguins [data set]
!
! Draws body mass against flipper length, colored by species, with a least-squares
! line for each species and one over all penguins. The data set is a data package
! or a CSV file with these columns; data/penguins below the working directory when
! none is named.
program penguins
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use korva
  implicit none

  character(*), parameter :: procedure_name = 'penguins'

  ! The variables of this run, in the order in which open_observations names them.
  integer(cx), parameter :: species = 1, flipper_length = 2, body_mass = 3

  type :: species_group
    character(:), allocatable :: species
    integer(cx) :: name  !< the same as a string handle of the chart library
  end type

  !> The cases without missing values; case i belongs to groups(group(i)).
  type :: sample
    real(dp), allocatable :: x(:), y(:)
    integer, allocatable :: group(:)
    type(species_group), allocatable :: groups(:)
  end type

  !> The least-squares line y = intercept + slope*x.
  type :: line_fit
    real(dp) :: intercept, slope, r_squared
    integer :: cases
  end type

  !> The chart and the nodes that several steps refer to.
  type :: drawing
    integer(cx) :: chart, source, graph, data
    integer(cx) :: species, x, y, fitted  !< variables
    integer(cx) :: points                 !< the element that the legend explains
  end type

  ! Solves least-squares problems of full rank (LAPACK).
  interface
    subroutine dgels(trans, m, n, nrhs, a, lda, b, ldb, work, lwork, info)
      import :: dp
      character, intent(in) :: trans
      integer, intent(in) :: m, n, nrhs, lda, ldb, lwork
      real(dp), intent(inout) :: a(lda, *), b(ldb, *)
      real(dp), intent(out) :: work(*)
      integer, intent(out) :: info
    end subroutine
  end interface

  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(line_fit) :: overall
    type(line_fit), allocatable :: within(:)
    type(drawing) :: plot
    integer :: g

    ! The chart comes first: with it the library learns of the data.
    call open_observations(observations)
    plot = new_drawing(observations)
    call require_number(plot, flipper_length)
    call require_number(plot, body_mass)
    call load_cases(observations, cases)

    overall = fit('all penguins', cases%x, cases%y)
    allocate (within(size(cases%groups)))
    do g = 1, size(within)
      within(g) = fit(cases%groups(g)%species, pack(cases%x, cases%group == g), &
        pack(cases%y, cases%group == g))
    end do

    call declare_variables(plot)
    call fill_rows(plot, cases, within)
    call draw_axes(plot)
    call draw_elements(plot, overall)
    call draw_legend(plot)
    call write_texts(plot, cases, overall, within)
    call require(cx_endchart(plot%chart) >= 0, 'cannot send the chart')
    call require(cx_terminate() >= 0, 'cannot end the chart library')
    call observations%close()
  end subroutine

  ! Data

  subroutine open_observations(observations)
    type(data_set), intent(inout) :: observations
    character(:), allocatable :: path
    integer :: columns(3)

    path = first_argument(otherwise='data/penguins')
    call require(observations%open(path), 'cannot open the data set '//path)
    columns = [observations%find_column('species'), &
      observations%find_column('flipper_length_mm'), observations%find_column('body_mass_g')]
    call require(all(columns > 0), 'this is not the data set that was expected')
    call require(observations%use_variables(columns), 'cannot use the variables')
  end subroutine

  !> Reads the cases and drops those with a missing value.
  subroutine load_cases(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(out) :: cases
    real(dp), allocatable :: cells(:)
    integer :: row, width, kept

    allocate (cells(observations%cell_count()))
    width = size(cells) - 2  ! the species is a text of some cells, the others are numbers
    allocate (cases%x(observations%row_count()), cases%y(observations%row_count()))
    allocate (cases%group(observations%row_count()), cases%groups(0))

    kept = 0
    do row = 1, observations%row_count()
      call require(observations%read_row(row, cells), 'cannot read the data set')
      if (any(cells(width + 1:) <= missing_value())) cycle
      if (text_of_cells(cells(:width)) == '') cycle
      kept = kept + 1
      cases%x(kept) = cells(width + 1)
      cases%y(kept) = cells(width + 2)
      call find_group(cells(:width), cases%groups, cases%group(kept))
    end do
    call require(kept > 0, 'the data set has no complete case')
    cases%x = cases%x(:kept)
    cases%y = cases%y(:kept)
    cases%group = cases%group(:kept)
  end subroutine

  !> Finds the group of a species; one that was not met before is added.
  subroutine find_group(species_cells, groups, found)
    real(dp), intent(in) :: species_cells(:)
    type(species_group), allocatable, intent(inout) :: groups(:)
    integer, intent(out) :: found
    type(species_group) :: new

    do found = 1, size(groups)
      if (groups(found)%species == text_of_cells(species_cells)) return
    end do
    found = size(groups) + 1
    new%species = text_of_cells(species_cells)
    new%name = made('the name of a species', cx_valuelabel(ignored, species, species_cells))
    groups = [groups, new]
  end subroutine

  ! Estimation

  function fit(name, x, y) result(line)
    character(*), intent(in) :: name
    real(dp), intent(in) :: x(:), y(:)
    type(line_fit) :: line
    real(dp) :: design(size(x), 2), estimates(size(x), 1), residuals(size(x)), work(128)
    integer :: info

    call require(maxval(x) > minval(x), &
      'no line for '//trim(name)//': it needs two different flipper lengths')
    design(:, 1) = 1
    design(:, 2) = x
    estimates(:, 1) = y
    call dgels('N', size(x), 2, 1, design, size(x), estimates, size(x), work, size(work), info)
    call require(info == 0, 'the least-squares problem has no solution')

    line%intercept = estimates(1, 1)
    line%slope = estimates(2, 1)
    line%cases = size(x)
    residuals = y - predicted(line, x)
    line%r_squared = 1 - sum(residuals**2)/sum((y - sum(y)/size(y))**2)
  end function

  elemental real(dp) function predicted(line, x)
    type(line_fit), intent(in) :: line
    real(dp), intent(in) :: x

    predicted = line%intercept + line%slope*x
  end function

  ! The chart

  type(drawing) function new_drawing(observations) result(plot)
    type(data_set), intent(in) :: observations

    plot%chart = made('a chart', create_chart(observations%dictionary, procedure_name, &
      plot%source, plot%graph, plot%data))
  end function

  !> A row's cells would not tell a text from a number; the display format does.
  subroutine require_number(plot, variable_number)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: variable_number
    integer(cx) :: format

    format = made('a display format', cx_getvariableformat(plot%chart, variable_number))
    call require(format_type(format) /= text_format, &
      'flipper length and body mass have to be numbers')
  end subroutine

  subroutine declare_variables(plot)
    type(drawing), intent(inout) :: plot

    plot%species = variable(plot, species, true)
    plot%x = variable(plot, flipper_length, false)
    plot%y = variable(plot, body_mass, false)
    plot%fitted = made('the fitted values', cx_addaggregate(plot%chart, plot%source, absent, &
      false, made('a text', translated('Fitted body mass (g)')), absent, absent))
    call make('the names of the species', cx_addrelabels(plot%chart, plot%species, species))
  end subroutine

  function variable(plot, number, categorical)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: number, categorical
    integer(cx) :: variable

    variable = made('a variable', &
      cx_addvariable(plot%chart, plot%source, number, categorical))
  end function

  subroutine fill_rows(plot, cases, within)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(line_fit), intent(in) :: within(:)
    integer :: i, g

    do i = 1, size(cases%x)
      g = cases%group(i)
      call require(cx_addrow(plot%chart, plot%source) >= 0, 'cannot add a row')
      call require(cx_adddatavalue(plot%chart, plot%source, plot%species, &
        cases%groups(g)%name) >= 0, 'cannot store a species')
      call store_numbers(plot%chart, plot%source, [plot%x, plot%y, plot%fitted], &
        [cases%x(i), cases%y(i), predicted(within(g), cases%x(i))])
    end do
  end subroutine

  !> x and y with 5% of room at either end; a variable's label is its axis's title.
  subroutine draw_axes(plot)
    type(drawing), intent(in) :: plot
    integer(cx) :: x_style, x_axis, y_style, y_axis

    call make('the axes', cx_addxydimensionwithaxis(plot%chart, plot%data, absent, absent, &
      false, false, x_style, x_axis, y_style, y_axis))
    call make('the title of x', &
      cx_addlabel(plot%chart, x_axis, x_style, label_of(flipper_length)))
    call make('the title of y', &
      cx_addlabel(plot%chart, y_axis, y_style, label_of(body_mass)))
  end subroutine

  !> A point for each penguin, a line for each species and one over all.
  subroutine draw_elements(plot, overall)
    type(drawing), intent(inout) :: plot
    type(line_fit), intent(in) :: overall
    integer(cx) :: lines, overall_line

    call make('the points', cx_addxyelementex(plot%chart, plot%data, 1_cx, word_point, &
      plot%x, plot%y, word_scatter, plot%points))
    call make('the colors of the points', &
      cx_addstylebycolor(plot%chart, plot%points, plot%species))

    call make('the lines of the species', cx_addxyelementex(plot%chart, plot%data, 1_cx, &
      word_line, plot%x, plot%fitted, word_simple_line, lines))
    call make('the colors of the lines', &
      cx_addstylebycolor(plot%chart, lines, plot%species))

    overall_line = made('the overall line', cx_addyofxlinear(plot%chart, plot%data, 1_cx, &
      overall%intercept, overall%slope, false))
    call make('the name of the overall line', &
      cx_setelementname(plot%chart, overall_line, made('a text', translated('All penguins'))))
  end subroutine

  subroutine draw_legend(plot)
    type(drawing), intent(in) :: plot
    integer(cx) :: legend, style

    call make('the legend', cx_addlegendframe(plot%chart, plot%graph, plot%points, 1_cx, &
      word_style_by, ignored, style, legend))
    call make('the title of the legend', &
      cx_addlabel(plot%chart, legend, style, label_of(species)))
  end subroutine

  ! Texts

  subroutine write_texts(plot, cases, overall, within)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(line_fit), intent(in) :: overall, within(:)
    character(*), parameter :: one_a_line = '[%1:\n^1:]1'
    integer(cx) :: lines(size(within))
    integer :: g

    call write_text(plot%chart, plot%graph, word_title, &
      translated('Body mass and flipper length of penguins'))
    call write_text(plot%chart, plot%graph, word_subtitle, &
      estimates(translated('All penguins'), overall))
    do g = 1, size(within)
      lines(g) = estimates(cases%groups(g)%name, within(g))
    end do
    call write_text(plot%chart, plot%graph, word_footnote, listed(one_a_line, lines))
    call describe_chart(plot%chart, translated('Chart description'))
  end subroutine

  function label_of(variable_number) result(label)
    integer(cx), intent(in) :: variable_number
    integer(cx) :: label

    label = made('the label of a variable', variable_label(variable_number))
  end function

  function estimates(name, line) result(string)
    integer(cx), intent(in) :: name
    type(line_fit), intent(in) :: line
    integer(cx) :: string

    string = composed('Regression line^7', [name, number_text(line%intercept, 0), &
      number_text(line%slope, 2), number_text(line%r_squared, 2), &
      number_text(real(line%cases, dp), 0), text('×'), text('R²')])
  end function

end program
