! Dates, which count seconds from 14 October 1582 on, in the calendar.
module calendar
  use, intrinsic :: iso_c_binding, only: dp => c_double
  implicit none
  private
  public :: split_date

  integer, parameter, public :: months_of_year = 12

contains

  !> Year and month of a date: days are counted from 1 March of the year 0, so that leap days
  !> come last, in eras of 400 years.
  pure subroutine split_date(seconds, year, month)
    real(dp), intent(in) :: seconds
    integer, intent(out) :: year, month
    integer, parameter :: days_before = 578040, era_days = 146097
    integer :: day, era, day_of_era, year_of_era, day_of_year, from_march

    day = floor(seconds/86400) + days_before
    era = day/era_days
    day_of_era = day - era*era_days
    year_of_era = (day_of_era - day_of_era/1460 + day_of_era/36524 - day_of_era/146096)/365
    day_of_year = day_of_era - (365*year_of_era + year_of_era/4 - year_of_era/100)
    from_march = (5*day_of_year + 2)/153
    month = modulo(from_march + 2, months_of_year) + 1
    year = year_of_era + 400*era + merge(1, 0, month < 3)
  end subroutine

end module
