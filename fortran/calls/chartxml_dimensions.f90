! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Dimensions and domains, as Fortran has it.
module chartxml_dimensions
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_dimensions
  implicit none
  private
  public :: add_dimension, get_dimension, set_dimension_upper_margin, set_dimension_lower_margin, &
    set_dimension_upper_mapping, set_dimension_lower_mapping, set_dimension_domain, &
    set_dimension_scale, set_union_domain, set_dimension_same_ratio, set_xy_dimension_same_scale, &
    set_bin_width, add_domain, add_interval_ex, add_domain_reference, set_domain_descending, &
    add_sort, set_sort_descending, add_simple_sort, set_simple_sort_method, add_statistic_sort

contains

  !> Gives a frame its dimension for a role, at most one a role; the domain of one that is known
  !> stays. handle: the frame's dimension, new or known. Refuses a role outside 1 to 7.
  subroutine add_dimension(chart, frame, role, domain, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, role
    class(*), intent(in), optional :: domain
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_dimension', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'role', role)
    call this%take(4, 'domain', domain)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_adddimension(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Finds the first dimension of a role anywhere below a frame. Refuses a role outside 1 to 7.
  function get_dimension(chart, frame, role, stat, errmsg) result(answer)
    class(*), intent(in) :: chart, frame, role
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('get_dimension', stat, answers=.true.)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'role', role)
    if (this%sound) this%result = cx_getdimension(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Sets the margin beyond a dimension's largest value.
  subroutine set_dimension_upper_margin(chart, dimension, margin, stat, errmsg)
    class(*), intent(in) :: chart, dimension, margin
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_dimension_upper_margin', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'dimension', dimension)
    call this%take_string(3, 'margin', margin)
    if (this%sound) this%result = cx_setdimensionuppermargin(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets the margin below a dimension's smallest value.
  subroutine set_dimension_lower_margin(chart, dimension, margin, stat, errmsg)
    class(*), intent(in) :: chart, dimension, margin
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_dimension_lower_margin', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'dimension', dimension)
    call this%take_string(3, 'margin', margin)
    if (this%sound) this%result = cx_setdimensionlowermargin(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets where a dimension's largest value is drawn.
  subroutine set_dimension_upper_mapping(chart, dimension, mapping, stat, errmsg)
    class(*), intent(in) :: chart, dimension, mapping
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_dimension_upper_mapping', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'dimension', dimension)
    call this%take_string(3, 'mapping', mapping)
    if (this%sound) this%result = cx_setdimensionuppermapping(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets where a dimension's smallest value is drawn.
  subroutine set_dimension_lower_mapping(chart, dimension, mapping, stat, errmsg)
    class(*), intent(in) :: chart, dimension, mapping
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_dimension_lower_mapping', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'dimension', dimension)
    call this%take_string(3, 'mapping', mapping)
    if (this%sound) this%result = cx_setdimensionlowermapping(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a dimension its domain, in place of one that it has.
  subroutine set_dimension_domain(chart, dimension, domain, stat, errmsg)
    class(*), intent(in) :: chart, dimension
    class(*), intent(in), optional :: domain
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_dimension_domain', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'dimension', dimension)
    call this%take(3, 'domain', domain)
    if (this%sound) this%result = cx_setdimensiondomain(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a scale to a dimension.
  subroutine set_dimension_scale(chart, dimension, scale_method, scale_value, invert, stat, &
      errmsg)
    class(*), intent(in) :: chart, dimension, scale_method, scale_value
    class(*), intent(in), optional :: invert
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_dimension_scale', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'dimension', dimension)
    call this%take(3, 'scale_method', scale_method)
    call this%take_string(4, 'scale_value', scale_value)
    call this%take_logical(5, 'invert', invert)
    if (this%sound) this%result = cx_setdimensionscale(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Has a dimension span all that is drawn along it. Refuses a node that is no dimension.
  subroutine set_union_domain(chart, dimension, stat, errmsg)
    class(*), intent(in) :: chart, dimension
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_union_domain', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'dimension', dimension)
    if (this%sound) this%result = cx_setuniondomain(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives the units of a dimension the length that they have in the others, and the chart's first
  !> facet labeling square panels.
  subroutine set_dimension_same_ratio(chart, dimension, same_ratio, stat, errmsg)
    class(*), intent(in) :: chart, dimension, same_ratio
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_dimension_same_ratio', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'dimension', dimension)
    call this%take_logical(3, 'same_ratio', same_ratio)
    if (this%sound) this%result = cx_setdimensionsameratio(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives every domain of the chart an interval around 0.
  subroutine set_xy_dimension_same_scale(chart, extent, stat, errmsg)
    class(*), intent(in) :: chart, extent
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_xy_dimension_same_scale', stat)
    call this%take(1, 'chart', chart)
    call this%take_real(1, 'extent', extent)
    if (this%sound) this%result = cx_setxydimensionsamescale(this%i(1), this%r(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets the width of the bins of every histogram of the chart.
  subroutine set_bin_width(chart, bin_width, stat, errmsg)
    class(*), intent(in) :: chart, bin_width
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_bin_width', stat)
    call this%take(1, 'chart', chart)
    call this%take_real(1, 'bin_width', bin_width)
    if (this%sound) this%result = cx_setbinwidth(this%i(1), this%r(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a domain, which dimensions may share, and, unless the method is -1, a sort with a simple
  !> sort in it. handle: the domain when the method is -1, else the simple sort: the handle before
  !> it is the sort, the one before that the domain.
  subroutine add_domain(chart, categorical, sort_method, handle, stat, errmsg)
    class(*), intent(in) :: chart
    class(*), intent(in), optional :: categorical, sort_method
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_domain', stat)
    call this%take(1, 'chart', chart)
    call this%take_logical(2, 'categorical', categorical)
    call this%take_string(3, 'sort_method', sort_method)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_adddomain(this%i(1), 0_c_int64_t, 0_c_int64_t, this%i(2), &
      this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds an interval to a domain. handle: the new interval. Refuses a node that is no domain.
  subroutine add_interval_ex(chart, min, max, domain, handle, stat, errmsg)
    class(*), intent(in) :: chart, min, max
    class(*), intent(in), optional :: domain
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_interval_ex', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'domain', domain)
    call this%take_string(3, 'min', min)
    call this%take_string(4, 'max', max)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addintervalex(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Has a domain take in another domain, or the values of a variable. handle: the new domain
  !> reference. Refuses a node that is no domain; one that is neither domain nor variable; two of
  !> which only one is categorical.
  subroutine add_domain_reference(chart, domain_or_variable, domain, handle, stat, errmsg)
    class(*), intent(in) :: chart, domain_or_variable
    class(*), intent(in), optional :: domain
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_domain_reference', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'domain', domain)
    call this%take(3, 'domain_or_variable', domain_or_variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_adddomainreference(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets the order of a domain on its first sort, which is added when there is none. Refuses a node
  !> that is no domain.
  subroutine set_domain_descending(chart, descending, domain, stat, errmsg)
    class(*), intent(in) :: chart, descending
    class(*), intent(in), optional :: domain
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_domain_descending', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'domain', domain)
    call this%take_logical(3, 'descending', descending)
    if (this%sound) this%result = cx_setdomaindescending(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a sort to a domain. handle: the new sort. Refuses a node that is no domain.
  subroutine add_sort(chart, domain, handle, stat, errmsg)
    class(*), intent(in) :: chart
    class(*), intent(in), optional :: domain
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_sort', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'domain', domain)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addsort(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets the order of a sort. Refuses a node that is no sort.
  subroutine set_sort_descending(chart, sort, descending, stat, errmsg)
    class(*), intent(in) :: chart, sort, descending
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_sort_descending', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'sort', sort)
    call this%take_logical(3, 'descending', descending)
    if (this%sound) this%result = cx_setsortdescending(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sorts by the values themselves. handle: the new simple sort. Refuses a node that is no sort.
  subroutine add_simple_sort(chart, sort, handle, stat, errmsg)
    class(*), intent(in) :: chart, sort
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_simple_sort', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'sort', sort)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addsimplesort(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets how a simple sort compares.
  subroutine set_simple_sort_method(chart, simple_sort, method, stat, errmsg)
    class(*), intent(in) :: chart, simple_sort, method
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_simple_sort_method', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'simple_sort', simple_sort)
    call this%take_string(3, 'method', method)
    if (this%sound) this%result = cx_setsimplesortmethod(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sorts the values of one variable by those of another. handle: the new statistic sort. Refuses a
  !> node that is no sort.
  subroutine add_statistic_sort(chart, sort, source_variable, stat_variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, sort, source_variable, stat_variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_statistic_sort', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'sort', sort)
    call this%take(3, 'source_variable', source_variable)
    call this%take(4, 'stat_variable', stat_variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addstatisticsort(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

end module
