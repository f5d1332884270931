! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Dimensions and domains: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_dimensions
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
  implicit none
  private
  public :: cx_adddimension, cx_getdimension, cx_setdimensionuppermargin, &
    cx_setdimensionlowermargin, cx_setdimensionuppermapping, cx_setdimensionupper, &
    cx_setdimensionlowermapping, cx_setdimensiondomain, cx_setdimensionscale, cx_setuniondomain, &
    cx_setdimensionsameratio, cx_setxydimensionsamescale, cx_setbinwidth, cx_adddomain, &
    cx_addintervalex, cx_adddomainreference, cx_setdomaindescending, cx_addsort, &
    cx_setsortdescending, cx_addsimplesort, cx_setsimplesortmethod, cx_addstatisticsort

  interface

    !> Gives a frame its dimension for a role, at most one a role; the domain of one that is known
    !> stays. Returns the frame's dimension, new or known. Reports a role outside 1 to 7.
    integer(c_int64_t) function cx_adddimension(chart, frame, role, domain) &
        bind(C, name="cx_adddimension_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, role, domain
    end function

    !> Finds the first dimension of a role anywhere below a frame. Returns the dimension, or -1 when
    !> there is none, silently. Reports a role outside 1 to 7.
    integer(c_int64_t) function cx_getdimension(chart, frame, role) &
        bind(C, name="cx_getdimension_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, role
    end function

    !> Sets the margin beyond a dimension's largest value. Returns the dimension, or -1 for any
    !> other node, silently.
    integer(c_int64_t) function cx_setdimensionuppermargin(chart, dimension, margin) &
        bind(C, name="cx_setdimensionuppermargin_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension, margin
    end function

    !> Sets the margin below a dimension's smallest value. Returns the dimension, or -1 for any
    !> other node, silently.
    integer(c_int64_t) function cx_setdimensionlowermargin(chart, dimension, margin) &
        bind(C, name="cx_setdimensionlowermargin_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension, margin
    end function

    !> Sets where a dimension's largest value is drawn. Returns the dimension, or -1 for any other
    !> node, silently.
    integer(c_int64_t) function cx_setdimensionuppermapping(chart, dimension, mapping) &
        bind(C, name="cx_setdimensionuppermapping_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension, mapping
    end function

    !> Sets where a dimension's largest value is drawn; the same as cx_setdimensionuppermapping_.
    !> Returns the dimension, or -1 for any other node, silently.
    integer(c_int64_t) function cx_setdimensionupper(chart, dimension, mapping) &
        bind(C, name="cx_setdimensionupper_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension, mapping
    end function

    !> Sets where a dimension's smallest value is drawn. Returns the dimension, or -1 for any other
    !> node, silently.
    integer(c_int64_t) function cx_setdimensionlowermapping(chart, dimension, mapping) &
        bind(C, name="cx_setdimensionlowermapping_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension, mapping
    end function

    !> Gives a dimension its domain, in place of one that it has. Returns the dimension.
    integer(c_int64_t) function cx_setdimensiondomain(chart, dimension, domain) &
        bind(C, name="cx_setdimensiondomain_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension, domain
    end function

    !> Adds a scale to a dimension. Returns the new scale, or -1 for any other node, silently.
    integer(c_int64_t) function cx_setdimensionscale(chart, dimension, scale_method, scale_value, &
        invert) bind(C, name="cx_setdimensionscale_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension, scale_method, scale_value, invert
    end function

    !> Has a dimension span all that is drawn along it. Returns the dimension. Reports a node that
    !> is no dimension.
    integer(c_int64_t) function cx_setuniondomain(chart, dimension) &
        bind(C, name="cx_setuniondomain_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension
    end function

    !> Gives the units of a dimension the length that they have in the others, and the chart's first
    !> facet labeling square panels. Returns the dimension; any other node too, where only the
    !> panels change.
    integer(c_int64_t) function cx_setdimensionsameratio(chart, dimension, same_ratio) &
        bind(C, name="cx_setdimensionsameratio_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension, same_ratio
    end function

    !> Gives every domain of the chart an interval around 0. Returns 1, or -1 when nothing happened,
    !> silently.
    integer(c_int64_t) function cx_setxydimensionsamescale(chart, extent) &
        bind(C, name="cx_setxydimensionsamescale_")
      import
      integer(c_int64_t), intent(in) :: chart
      real(c_double), intent(in) :: extent
    end function

    !> Sets the width of the bins of every histogram of the chart. Returns 1, or -1 when nothing
    !> happened, silently.
    integer(c_int64_t) function cx_setbinwidth(chart, bin_width) bind(C, name="cx_setbinwidth_")
      import
      integer(c_int64_t), intent(in) :: chart
      real(c_double), intent(in) :: bin_width
    end function

    !> Adds a domain, which dimensions may share, and, unless the method is -1, a sort with a simple
    !> sort in it. Returns the domain when the method is -1, else the simple sort: the handle before
    !> it is the sort, the one before that the domain.
    integer(c_int64_t) function cx_adddomain(chart, ignored1, ignored2, categorical, sort_method) &
        bind(C, name="cx_adddomain_")
      import
      integer(c_int64_t), intent(in) :: chart, ignored1, ignored2, categorical, sort_method
    end function

    !> Adds an interval to a domain. Returns the new interval. Reports a node that is no domain.
    integer(c_int64_t) function cx_addintervalex(chart, domain, min, max) &
        bind(C, name="cx_addintervalex_")
      import
      integer(c_int64_t), intent(in) :: chart, domain, min, max
    end function

    !> Has a domain take in another domain, or the values of a variable. Returns the new domain
    !> reference. Reports a node that is no domain; one that is neither domain nor variable; two of
    !> which only one is categorical.
    integer(c_int64_t) function cx_adddomainreference(chart, domain, domain_or_variable) &
        bind(C, name="cx_adddomainreference_")
      import
      integer(c_int64_t), intent(in) :: chart, domain, domain_or_variable
    end function

    !> Sets the order of a domain on its first sort, which is added when there is none. Returns the
    !> domain. Reports a node that is no domain.
    integer(c_int64_t) function cx_setdomaindescending(chart, domain, descending) &
        bind(C, name="cx_setdomaindescending_")
      import
      integer(c_int64_t), intent(in) :: chart, domain, descending
    end function

    !> Adds a sort to a domain. Returns the new sort. Reports a node that is no domain.
    integer(c_int64_t) function cx_addsort(chart, domain) bind(C, name="cx_addsort_")
      import
      integer(c_int64_t), intent(in) :: chart, domain
    end function

    !> Sets the order of a sort. Returns the sort. Reports a node that is no sort.
    integer(c_int64_t) function cx_setsortdescending(chart, sort, descending) &
        bind(C, name="cx_setsortdescending_")
      import
      integer(c_int64_t), intent(in) :: chart, sort, descending
    end function

    !> Sorts by the values themselves. Returns the new simple sort. Reports a node that is no sort.
    integer(c_int64_t) function cx_addsimplesort(chart, sort) bind(C, name="cx_addsimplesort_")
      import
      integer(c_int64_t), intent(in) :: chart, sort
    end function

    !> Sets how a simple sort compares. Returns the simple sort, or -1 for any other node, silently.
    integer(c_int64_t) function cx_setsimplesortmethod(chart, simple_sort, method) &
        bind(C, name="cx_setsimplesortmethod_")
      import
      integer(c_int64_t), intent(in) :: chart, simple_sort, method
    end function

    !> Sorts the values of one variable by those of another. Returns the new statistic sort. Reports
    !> a node that is no sort.
    integer(c_int64_t) function cx_addstatisticsort(chart, sort, source_variable, stat_variable) &
        bind(C, name="cx_addstatisticsort_")
      import
      integer(c_int64_t), intent(in) :: chart, sort, source_variable, stat_variable
    end function

  end interface

end module
