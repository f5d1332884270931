! Who was on board of the Titanic, and who survived?
!
! usage: titanic [data set]
!
! Each row of the data set stands for as many persons as it says. Draws the persons by
! class as a pie, the fates by class as bars, and for each class the share of survivors by
! sex and age as bars, beside what they would be if class, sex and age just added up: a
! weighted least-squares fit over all persons. The data set is a data package or a CSV file
! with these columns; data/titanic below the working directory when none is named.
program titanic
  use, intrinsic :: iso_c_binding, only: c_null_ptr, dp => c_double
  use charts
  use chartxml
  use korva
  use least_squares
  implicit none

  character(*), parameter :: procedure_name = 'titanic'

  ! The variables of this run, in the order in which they are opened, and their codes.
  integer(cx), parameter :: class = 1, sex = 2, age = 3, fate = 4, persons = 5
  integer, parameter :: female = 2, child = 1, survivor = 1
  integer(cx), parameter :: theta_role = 5

  !> The rows that stand for somebody.
  type :: sample
    integer, allocatable :: codes(:, :)  !< class, sex, age and fate of a row
    real(dp), allocatable :: persons(:)
    integer, allocatable :: classes(:)   !< the codes that there are
  end type

  !> Percentages of survivors that add up.
  type :: effects
    real(dp), allocatable :: class(:)  !< of grown men
    real(dp) :: female, child          !< what these add
    real(dp) :: overall
  end type

  type :: drawing
    integer(cx) :: chart, source, graph, data  !< the chart and its nodes
  end type

  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(effects) :: survival
    integer :: i

    call open_observations(observations, procedure_name, otherwise='data/titanic', &
      names=[character(8) :: 'class', 'sex', 'age', 'survived', 'persons'], numbers=1_cx)
    call require(observations%split_by([observations%find_column('class')]), &
      'cannot split by class')
    call load_cases(observations, cases)
    survival = fit(cases)

    call draw_classes(observations, cases)
    call draw_fates(observations, cases)
    do i = 1, size(cases%classes)
      call draw_survival(observations, cases, survival, i)
    end do

    call require(cx_terminate() >= 0, 'cannot end the chart library')
    call observations%close()
  end subroutine

  ! Data

  subroutine load_cases(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(out) :: cases
    real(dp) :: cells(5)
    integer :: row, kept

    allocate (cases%codes(observations%row_count(), 4), cases%persons(observations%row_count()))
    allocate (cases%classes(0))
    kept = 0
    do row = 1, observations%row_count()
      call require(observations%read_row(row, cells), 'cannot read the data set')
      if (any(cells <= missing_value()) .or. cells(persons) <= 0) cycle
      kept = kept + 1
      cases%codes(kept, :) = nint(cells(:fate))
      cases%persons(kept) = cells(persons)
      if (.not. any(cases%classes == cases%codes(kept, class))) &
        cases%classes = [cases%classes, cases%codes(kept, class)]
    end do
    call require(kept > 0, 'the data set has no complete case')
    cases%codes = cases%codes(:kept, :)
    cases%persons = cases%persons(:kept)
  end subroutine

  !> The percentage of survivors among the persons of some rows.
  pure real(dp) function survival_of(cases, rows)
    type(sample), intent(in) :: cases
    logical, intent(in) :: rows(:)

    survival_of = 100*sum(cases%persons, rows .and. cases%codes(:, fate) == survivor) &
      /sum(cases%persons, rows)
  end function

  ! Estimation

  function fit(cases) result(survival)
    type(sample), intent(in) :: cases
    type(effects) :: survival
    real(dp) :: design(size(cases%persons), size(cases%classes) + 2)
    real(dp) :: coefficients(size(cases%classes) + 2)
    integer :: classes, i

    classes = size(cases%classes)
    do i = 1, classes
      design(:, i) = merge(1, 0, cases%codes(:, class) == cases%classes(i))
    end do
    design(:, classes + 1) = merge(1, 0, cases%codes(:, sex) == female)
    design(:, classes + 2) = merge(1, 0, cases%codes(:, age) == child)
    coefficients = fitted_coefficients(design, &
      merge(100.0_dp, 0.0_dp, cases%codes(:, fate) == survivor), weights=cases%persons)

    survival = effects(class=coefficients(:classes), female=coefficients(classes + 1), &
      child=coefficients(classes + 2), overall=survival_of(cases, cases%persons > 0))
  end function

  ! Persons by class

  subroutine draw_classes(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(drawing) :: plot
    integer(cx) :: same_chart, classes, counts, slices, legend, style
    integer :: i

    plot%chart = made('a chart', cx_createpiechart(c_null_ptr, observations%dictionary, &
      procedure_name, len(procedure_name, kind=cx), same_chart, plot%source, plot%graph, &
      plot%data))
    classes = categories(plot, class)
    counts = computed_variable(plot%chart, plot%source, variable_label(persons), &
      display_format(plain_format, 5, 0), name=word_count)
    do i = 1, size(cases%classes)
      call start_row(plot%chart, plot%source)
      call store_numbers(plot%chart, plot%source, [classes, counts], [real(cases%classes(i), dp), &
        sum(cases%persons, cases%codes(:, class) == cases%classes(i))])
    end do

    call make('the pie', cx_addcoordinatetransform(plot%chart, plot%data, word_polar))
    call make('its angles', cx_adddimension(plot%chart, plot%data, theta_role, absent))
    slices = made('the slices', cx_addelement(plot%chart, plot%data, word_interval, &
      made('a style', cx_stylestring(ignored, word_simple_bar, 1_cx))))
    call make('the angle of each slice', cx_addtheta(plot%chart, slices, counts))
    call make('the colors of the slices', cx_addstylebycolor(plot%chart, slices, classes))
    call make('the numbers in the slices', cx_addlabelinginside(plot%chart, slices, counts))
    call make('the legend', cx_addlegendframe(plot%chart, plot%graph, slices, 1_cx, &
      word_style_by, ignored, style, legend))
    call title_axis(plot%chart, legend, style, variable_label(class))
    call write_texts_and_send(plot, 'Persons on board of the Titanic', weight_text(), &
      translated('Description of persons'))
  end subroutine

  ! Fates by class

  subroutine draw_fates(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(drawing) :: plot
    integer(cx) :: classes, fates, counts, order, bars, colors, legend, style
    integer :: i, code

    plot = new_drawing(observations)
    classes = categories(plot, class)
    fates = categories(plot, fate)
    counts = computed_variable(plot%chart, plot%source, variable_label(persons), &
      display_format(plain_format, 5, 0), name=word_count)
    do i = 1, size(cases%classes)
      do code = 0, survivor
        call start_row(plot%chart, plot%source)
        call store_numbers(plot%chart, plot%source, [classes, fates, counts], &
          [real([cases%classes(i), code], dp), sum(cases%persons, &
          cases%codes(:, class) == cases%classes(i) .and. cases%codes(:, fate) == code)])
      end do
    end do

    ! The sort comes back, two nodes after its domain.
    order = made('the order of the classes', &
      cx_adddomain(plot%chart, ignored, ignored, true, word_natural)) - 2
    call make('the classes', cx_adddomainreference(plot%chart, order, classes))
    call draw_axes(plot, order, absent, variable_label(class), variable_label(persons))
    call make('the bars', cx_addxyelementex(plot%chart, plot%data, 1_cx, word_interval, &
      classes, counts, word_clustered_bar, bars))
    call make('the bars side by side', &
      cx_setelementpositionmodifier(plot%chart, bars, word_dodge))
    colors = made('the colors of the bars', cx_addstylebycolor(plot%chart, bars, fates))
    call make('the legend', cx_addlegendframeex(plot%chart, plot%graph, bars, 1_cx, colors, &
      style, legend))
    call title_axis(plot%chart, legend, style, variable_label(fate))
    call write_texts_and_send(plot, 'Fates on the Titanic', weight_text(), &
      translated('Description of fates'))
  end subroutine

  ! Survival in one class

  subroutine draw_survival(observations, cases, survival, i)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(effects), intent(in) :: survival
    integer, intent(in) :: i
    type(drawing) :: plot
    integer(cx) :: groups, observed, fitted, percent, percentages
    real(dp) :: split_cells(1)

    percent = display_format(percent_format, 6, 1)
    plot = new_drawing(observations)
    groups = made('a categorical variable', cx_addaggregate(plot%chart, plot%source, absent, true, &
      made('a text', translated('Sex and age')), absent, absent))
    observed = computed_variable(plot%chart, plot%source, translated('Observed'), percent)
    fitted = computed_variable(plot%chart, plot%source, translated('Fitted'), percent)
    call fill_groups(plot, cases, survival, i, groups, [observed, fitted])

    percentages = made('the percentages', &
      cx_adddomain(plot%chart, ignored, ignored, false, absent))
    call make('their range', cx_addintervalex(plot%chart, percentages, cx_double(0.0_dp), &
      cx_double(100.0_dp)))
    call make('their values', cx_adddomainreference(plot%chart, percentages, observed))
    call make('their values', cx_adddomainreference(plot%chart, percentages, fitted))
    call draw_axes(plot, absent, percentages, translated('Sex and age'), &
      translated('Survivors (percent)'))
    call draw_shares(plot, groups, observed, word_interval, word_simple_bar, 'Observed', 1_cx)
    call draw_shares(plot, groups, fitted, word_point, word_scatter, 'Fitted', 2_cx)
    call make('the name of the line', cx_setelementname(plot%chart, made('a line', &
      cx_addyreferenceline(plot%chart, plot%data, cx_double(survival%overall), 1_cx)), &
      made('a text', translated('All persons'))))

    split_cells = cases%classes(i)
    call make('the class as header', &
      cx_addsplitheaderex(plot%chart, plot%graph, split_cells, ignored))
    call require(cx_setsplitcomposite(plot%chart, split_cells, ignored) >= 0, &
      'cannot tell the class of the chart')
    call write_texts_and_send(plot, 'Survival by sex and age', listed(one_a_line, &
      [composed('Effects^3', [number_text(survival%class(i), 1, percent_format), &
      number_text(survival%female, 1), number_text(survival%child, 1)]), weight_text()]), &
      cx_splitvariableinfo(ignored, made('a text', translated('Description of survival')), &
      split_cells, 1_cx, false, true, false, true, show_splits=true, keyed=true))
  end subroutine

  !> A row for each combination of sex and age that there is in the class.
  subroutine fill_groups(plot, cases, survival, i, groups, shares)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(effects), intent(in) :: survival
    integer, intent(in) :: i
    integer(cx), intent(in) :: groups, shares(2)
    integer :: pair(2)
    logical, dimension(size(cases%persons)) :: rows, seen

    seen = cases%codes(:, class) /= cases%classes(i)
    do while (.not. all(seen))
      pair = cases%codes(findloc(seen, .false., dim=1), [sex, age])
      rows = cases%codes(:, class) == cases%classes(i) .and. &
        cases%codes(:, sex) == pair(1) .and. cases%codes(:, age) == pair(2)
      call start_row(plot%chart, plot%source)
      call require(cx_adddatavalue(plot%chart, plot%source, groups, group_name(pair)) >= 0, &
        'cannot store a group')
      call store_numbers(plot%chart, plot%source, shares, [survival_of(cases, rows), &
        survival%class(i) + merge(survival%female, 0.0_dp, pair(1) == female) &
        + merge(survival%child, 0.0_dp, pair(2) == child)])
      seen = seen .or. rows
    end do
  end subroutine

  !> "Female, Child"
  function group_name(pair) result(string)
    integer, intent(in) :: pair(2)
    integer(cx) :: string

    string = made('the name of a group', composed('Group^2', &
      [cx_valuelabel(ignored, sex, [real(pair(1), dp)]), &
       cx_valuelabel(ignored, age, [real(pair(2), dp)])]))
  end function

  !> An element under a name, with a legend of its own.
  subroutine draw_shares(plot, x, y, type, style_kind, name, index)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: x, y, type, style_kind, index
    character(*), intent(in) :: name  !< a key of the string table
    integer(cx) :: element, legend, style

    call make('an element', cx_addxyelementex(plot%chart, plot%data, 1_cx, type, x, y, &
      style_kind, element))
    call make('the name of an element', &
      cx_setelementname(plot%chart, element, made('a text', translated(name))))
    call make('a legend', cx_addlegendframeex(plot%chart, plot%graph, element, index, absent, &
      style, legend))
  end subroutine

  ! What the charts have in common

  type(drawing) function new_drawing(observations) result(plot)
    type(data_set), intent(in) :: observations

    plot%chart = made('a chart', create_chart(observations%dictionary, procedure_name, &
      plot%source, plot%graph, plot%data))
  end function

  !> A variable of the run whose codes have labels.
  function categories(plot, number) result(variable)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: number
    integer(cx) :: variable

    variable = declared_variable(plot%chart, plot%source, number, true)
    call make('the names of the categories', cx_addrelabels(plot%chart, variable, number))
  end function

  !> Bars stand on the x axis and leave room beside them.
  subroutine draw_axes(plot, x_domain, y_domain, x_title, y_title)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: x_domain, y_domain, x_title, y_title
    integer(cx) :: x_style, x_axis, y_style, y_axis, wide, narrow, none

    wide = made('a margin', text('10%'))
    narrow = made('a margin', text('5%'))
    none = made('a margin', text('0%'))
    call make('the axes', cx_addxydimension(plot%chart, plot%data, x_domain, y_domain, false, &
      false, x_style, x_axis, y_style, y_axis, wide, wide, narrow, none, absent, absent, absent, &
      absent))
    call title_axis(plot%chart, x_axis, x_style, x_title)
    call title_axis(plot%chart, y_axis, y_style, y_title)
  end subroutine

  function weight_text() result(string)
    integer(cx) :: string

    string = cx_weightinfo(ignored, ignored, persons, true)
  end function

  !> Title, footnote and description.
  subroutine write_texts_and_send(plot, title, footnote, description)
    type(drawing), intent(in) :: plot
    character(*), intent(in) :: title
    integer(cx), intent(in) :: footnote, description

    call write_text(plot%chart, plot%graph, word_title, translated(title))
    call write_text(plot%chart, plot%graph, word_footnote, footnote)
    call send_chart(plot%chart, description)
  end subroutine

end program
