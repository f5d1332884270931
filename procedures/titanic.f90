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
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings, only: categories, drawing, name_element, new_drawing
  use korva
  use least_squares
  use number_cases
  implicit none

  character(*), parameter :: procedure_name = 'titanic'

  ! The variables of this run, in the order in which they are opened, and their codes.
  integer, parameter :: class = 1, sex = 2, age = 3, fate = 4, persons = 5
  integer, parameter :: female = 2, child = 1, survivor = 1

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

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(effects) :: survival
    integer :: i

    call open_observations(observations, procedure_name, otherwise='data/titanic', &
      names=[character(8) :: 'class', 'sex', 'age', 'survived', 'persons'], numbers=1)
    call require(observations%split_by([observations%find_column('class')]), &
      'cannot split by class')
    call load_cases(observations, cases)
    survival = fit(cases)

    call draw_classes(observations, cases)
    call draw_fates(observations, cases)
    do i = 1, size(cases%classes)
      call draw_survival(observations, cases, survival, i)
    end do

    call end_library
    call observations%close()
  end subroutine

  ! Data

  subroutine load_cases(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(out) :: cases
    real(dp), allocatable :: rows(:, :)
    integer :: i

    call read_numbers(observations, rows)
    rows = rows(pack([(i, i=1, size(rows, 1))], rows(:, persons) > 0), :)
    call require(size(rows, 1) > 0, 'the data set has no complete case')
    cases%codes = nint(rows(:, :fate))
    cases%persons = rows(:, persons)
    allocate (cases%classes(0))
    do i = 1, size(rows, 1)
      if (.not. any(cases%classes == cases%codes(i, class))) &
        cases%classes = [cases%classes, cases%codes(i, class)]
    end do
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
    integer :: classes, counts, slices, legend, style, i

    call new_pie_chart(procedure_name, plot%chart, observations%dictionary, source=plot%source, &
      graph=plot%graph, pie=plot%data)
    classes = categories(plot, class)
    call add_aggregate(plot%chart, plot%source, name=string_countname, &
      label=label_of_variable(persons), handle=counts)
    call set_variable_format(plot%chart, counts, packed_format(format_plain, 5, 0))
    call load(plot%chart, classes, cases%classes)
    call load(plot%chart, counts, [(sum(cases%persons, &
      cases%codes(:, class) == cases%classes(i)), i=1, size(cases%classes))])

    call add_coordinate_transform(plot%chart, plot%data, string_polar)
    call add_dimension(plot%chart, plot%data, role_theta)
    call add_element(plot%chart, plot%data, string_interval, style_string(string_simplebar, 1), &
      handle=slices)
    call add_theta(plot%chart, slices, counts)
    call add_style_by_color(plot%chart, slices, classes)
    call add_labeling_inside(plot%chart, slices, counts)
    call add_legend_frame(plot%chart, plot%graph, slices, 1, aesthetic=string_style_by, &
      style=style, legend=legend)
    call add_label(plot%chart, legend, style, label_of_variable(class))
    call write_texts_and_send(plot, 'Persons on board of the Titanic', weight_text(), &
      translation('Description of persons'))
  end subroutine

  ! Fates by class

  subroutine draw_fates(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(drawing) :: plot
    integer :: classes, fates, counts, sort, order, bars, colors, legend, style
    integer :: i, code

    plot = new_drawing(observations, procedure_name)
    classes = categories(plot, class)
    fates = categories(plot, fate)
    call add_aggregate(plot%chart, plot%source, name=string_countname, &
      label=label_of_variable(persons), handle=counts)
    call set_variable_format(plot%chart, counts, packed_format(format_plain, 5, 0))
    do i = 1, size(cases%classes)
      do code = 0, survivor
        call add_row(plot%chart)
        call add_double_data_value(plot%chart, classes, cases%classes(i))
        call add_double_data_value(plot%chart, fates, code)
        call add_double_data_value(plot%chart, counts, sum(cases%persons, &
          cases%codes(:, class) == cases%classes(i) .and. cases%codes(:, fate) == code))
      end do
    end do

    ! The sort comes back, two nodes after its domain.
    call add_domain(plot%chart, categorical=.true., sort_method=string_natural, handle=sort)
    order = sort - 2
    call add_domain_reference(plot%chart, classes, order)
    call draw_axes(plot, label_of_variable(class), label_of_variable(persons), x_domain=order)
    call add_xy_element(plot%chart, plot%data, 1, string_interval, classes, counts, &
      string_clusteredbar, bars)
    call set_element_position_modifier(plot%chart, bars, string_dodge)
    call add_style_by_color(plot%chart, bars, fates, handle=colors)
    call add_legend_frame_of(plot%chart, plot%graph, bars, 1, style_by_node=colors, style=style, &
      legend=legend)
    call add_label(plot%chart, legend, style, label_of_variable(fate))
    call write_texts_and_send(plot, 'Fates on the Titanic', weight_text(), &
      translation('Description of fates'))
  end subroutine

  ! Survival in one class

  subroutine draw_survival(observations, cases, survival, i)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(effects), intent(in) :: survival
    integer, intent(in) :: i
    type(drawing) :: plot
    integer :: groups, observed, fitted, percent, percentages, line
    real(dp) :: split_cells(1)

    percent = packed_format(format_percent, 6, 1)
    plot = new_drawing(observations, procedure_name)
    call add_aggregate(plot%chart, plot%source, categorical=.true., &
      label=translation('Sex and age'), handle=groups)
    call add_aggregate(plot%chart, plot%source, label=translation('Observed'), handle=observed)
    call set_variable_format(plot%chart, observed, percent)
    call add_aggregate(plot%chart, plot%source, label=translation('Fitted'), handle=fitted)
    call set_variable_format(plot%chart, fitted, percent)
    call fill_groups(plot, cases, survival, i, groups, observed, fitted)

    call add_domain(plot%chart, handle=percentages)
    call add_interval_ex(plot%chart, real_string(0), real_string(100), percentages)
    call add_domain_reference(plot%chart, observed, percentages)
    call add_domain_reference(plot%chart, fitted, percentages)
    call draw_axes(plot, translation('Sex and age'), translation('Survivors (percent)'), &
      y_domain=percentages)
    call draw_shares(plot, groups, observed, string_interval, string_simplebar, 'Observed', 1)
    call draw_shares(plot, groups, fitted, string_point, string_scatter, 'Fitted', 2)
    call add_y_reference_line(plot%chart, plot%data, real_string(survival%overall), &
      guide_style=1, handle=line)
    call set_element_name(plot%chart, line, translation('All persons'))

    split_cells = cases%classes(i)
    call add_split_header(plot%chart, plot%graph, split_cells)
    call set_split_composite(plot%chart, split_cells)
    call write_texts_and_send(plot, 'Survival by sex and age', list_of(one_a_line, &
      [composite_of('Effects^3', [number_string(survival%class(i), 1, format_percent), &
      number_string(survival%female, 1), number_string(survival%child, 1)]), weight_text()]), &
      split_variable_info(split_cells, 1, translation('Description of survival'), &
      show_label=.true., show_value_label=.true., show_splits=.true., keyed=.true.))
  end subroutine

  !> A row for each combination of sex and age that there is in the class.
  subroutine fill_groups(plot, cases, survival, i, groups, observed, fitted)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(effects), intent(in) :: survival
    integer, intent(in) :: i, groups, observed, fitted
    integer :: pair(2)
    logical, dimension(size(cases%persons)) :: rows, seen

    seen = cases%codes(:, class) /= cases%classes(i)
    do while (.not. all(seen))
      pair = cases%codes(findloc(seen, .false., dim=1), [sex, age])
      rows = cases%codes(:, class) == cases%classes(i) .and. &
        cases%codes(:, sex) == pair(1) .and. cases%codes(:, age) == pair(2)
      call add_row(plot%chart)
      call add_data_value(plot%chart, groups, group_name(pair))
      call add_double_data_value(plot%chart, observed, survival_of(cases, rows))
      call add_double_data_value(plot%chart, fitted, survival%class(i) &
        + merge(survival%female, 0.0_dp, pair(1) == female) &
        + merge(survival%child, 0.0_dp, pair(2) == child))
      seen = seen .or. rows
    end do
  end subroutine

  !> "Female, Child"
  function group_name(pair) result(string)
    integer, intent(in) :: pair(2)
    integer :: string

    string = composite_of('Group^2', [value_label(sex, [real(pair(1), dp)]), &
      value_label(age, [real(pair(2), dp)])])
  end function

  !> An element under a name, with a legend of its own.
  subroutine draw_shares(plot, x, y, type, style_kind, name, index)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: x, y, type, style_kind, index
    character(*), intent(in) :: name  !< a key of the string table
    integer :: element

    call add_xy_element(plot%chart, plot%data, 1, type, x, y, style_kind, element)
    call name_element(plot, element, name, index)
  end subroutine

  ! What the charts have in common

  !> Bars stand on the x axis and leave room beside them.
  subroutine draw_axes(plot, x_title, y_title, x_domain, y_domain)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: x_title, y_title
    integer, intent(in), optional :: x_domain, y_domain
    integer :: x_style, x_axis, y_style, y_axis

    call add_xy_dimensions(plot%chart, plot%data, x_domain, y_domain, x_style=x_style, &
      x_axis=x_axis, y_style=y_style, y_axis=y_axis, x_upper_margin='10%', x_lower_margin='10%', &
      y_upper_margin='5%', y_lower_margin='0%')
    call add_label(plot%chart, x_axis, x_style, x_title)
    call add_label(plot%chart, y_axis, y_style, y_title)
  end subroutine

  function weight_text() result(string)
    integer :: string

    string = weight_info(persons, .true.)
  end function

  !> Title, footnote and description.
  subroutine write_texts_and_send(plot, title, footnote, description)
    type(drawing), intent(in) :: plot
    character(*), intent(in) :: title
    integer, intent(in) :: footnote, description

    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, translation(title))
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, footnote)
    call set_chart_description(plot%chart, description)
    call end_chart(plot%chart)
  end subroutine

end program
