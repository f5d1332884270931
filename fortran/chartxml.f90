! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! The entry points for procedures, as the library has them. A text is passed with its length in
! bytes; integers are of kind c_int64_t. Module charts beside this one takes texts as Fortran has
! them.
!
! Calling convention. Every argument is passed by its address, all but the procedure handle, which
! is an address itself. Integers have 64 bits: the library reads the low 32 as a signed number, but
! entry points of several steps compare all 64, so store every integer sign-extended; results and
! outputs come back sign-extended. A logical is an integer: 0 is false, any other value true. Reals
! have 64 bits.
!
! A text is the address of its first byte, then the address of its length: exactly that many bytes
! in the process code page (UTF-8 unless the host says otherwise), without terminator, trailing
! blanks kept. Bytes that are not valid become U+FFFD; a negative length is an empty text. Arguments
! named "ignored" are never read.
!
! Handles. Charts count from 0; nodes count from 0 within their chart, and node 0 is its document
! element; texts have string handles, 1 to 156 of which are predefined. Handles are numbers and need
! no release. Variables go by the number that the procedure has for them, from 1.
!
! Ownership. The library copies texts and cells during the call and keeps no address of them. The
! dictionary stays the procedure's; keep its data set open until the charts are ended.
!
! The value -1 means "absent" where an integer is optional, and failure where it is returned. A
! check that fails changes nothing, but for strings made on the way; an entry point of several steps
! ends at the first that fails, keeps the nodes of the others, and leaves the outputs of later steps
! alone. Ending a chart consumes it also when it cannot be sent.
!
! Errors. Nothing is thrown or raised. What is refused is reported in one line, with the reason, to
! the host's error log: a bad chart, node or string handle by every entry point, the rest as told
! with each. "Silently" means without a report. Call from one thread.
module chartxml
  use, intrinsic :: iso_c_binding, only: c_char, c_double, c_int64_t, c_ptr
  implicit none
  private
  public :: cx_init, cx_createchart, cx_createchartex, cx_createpiechart, cx_setcharttype, &
    cx_setcharttemplate, cx_setchartdescription, cx_createchartdescription, cx_setsplitcomposite, &
    cx_endchart, cx_killchart, cx_killcharts, cx_terminate, cx_dumpxml, cx_statisticssummary, &
    cx_nstring, cx_string, cx_nstringnotranslate, cx_compositestring, cx_addparameter, &
    cx_beginrepeat, cx_endrepeat, cx_endcompositestring, cx_stylestring, cx_integer, cx_ivalue, &
    cx_ivalueasstring, cx_double, cx_lrvalue, cx_lrvalueasstring, cx_value, cx_meanvalue, &
    cx_valuelabel, cx_valuelabelshort, cx_objectlabel, cx_splitlist, cx_splitheader, &
    cx_splitvariableinfo, cx_weightinfo, cx_variablename, cx_variablelabel, &
    cx_variablelabelfromdictionary, cx_tosk, cx_addsource, cx_addvariable, cx_addlabelingvariable, &
    cx_addweightvariable, cx_setvariable, cx_setaggregateexternal, cx_setvariablelabel, &
    cx_setvariablename, cx_setvariablevalue, cx_setvariablecategorical, cx_getvariablelabel, &
    cx_addaggregate, cx_addweightaggregate, cx_addlabelingaggregate, cx_beginvariablelist, &
    cx_addtovariablelist, cx_addoverlayvariable, cx_addrangevariable, cx_addmatrixvariable, &
    cx_getvariableformat, cx_setvariableformat, cx_createlogvar, cx_addrelabel, cx_addrelabels, &
    cx_alldatadoubles, cx_addrow, cx_adddatavalue, cx_adddoubledatavalue, cx_addframe, &
    cx_setframeclipping, cx_addlabel, cx_addframewithlabel, cx_addsplitheaderex, &
    cx_addfacetlabeling, cx_addfacetlabel, cx_setfacetlabelcellstyle, cx_getfacetlabel, &
    cx_setfacetlabellevel, cx_setfacetlabelgap, cx_setfacetlabelingcellaspect, cx_addtablefacet, &
    cx_addcoordinatefacet, cx_addnest, cx_addblend, cx_addcross, cx_addfacetvariable, &
    cx_addfacetstyle, cx_addcoordinatetransform, cx_addxyzwireframe, cx_addxyzbackplanes, &
    cx_addelement, cx_addelementgroup, cx_addxyelementex, cx_addsplomelement, &
    cx_addsplomelementex, cx_setelementname, cx_setelementdot, cx_setelementpositionmodifier, &
    cx_addbinnedelement, cx_addposition, cx_addx, cx_addy, cx_addz, cx_addtheta, cx_addcolor, &
    cx_addstyleby, cx_addstylebycolor, cx_addstylebypattern, cx_addstylebycolorandpattern, &
    cx_addsplit, cx_addlabeling, cx_addlabelingsuffix, cx_addlabelinginside, &
    cx_setsummaryfunction, cx_addstatistic, cx_addparam, cx_setdisplayoverlappinglabels, &
    cx_setlabelcollisionhandling, cx_adddimension, cx_getdimension, cx_setdimensionuppermargin, &
    cx_setdimensionlowermargin, cx_setdimensionuppermapping, cx_setdimensionupper, &
    cx_setdimensionlowermapping, cx_setdimensiondomain, cx_setdimensionscale, cx_setuniondomain, &
    cx_setdimensionsameratio, cx_setxydimensionsamescale, cx_setbinwidth, cx_adddomain, &
    cx_addintervalex, cx_adddomainreference, cx_setdomaindescending, cx_addsort, &
    cx_setsortdescending, cx_addsimplesort, cx_setsimplesortmethod, cx_addstatisticsort, &
    cx_addaxis, cx_addmajorticks, cx_addminorticks, cx_setaxispercent, cx_setlogunsafe, &
    cx_adddimensionaxis, cx_addxydimension, cx_addxydimensionwithaxis, &
    cx_addxydimaxiswithsameratio, cx_addguide, cx_addxreferenceline, cx_addyreferenceline, &
    cx_addyfunctionofx, cx_addyofxlinear, cx_addyofxlogarithmic, cx_addyofxinverse, &
    cx_addyofxquadratic, cx_addyofxcubic, cx_addyofxcompound, cx_addyofxpower, cx_addyofxs, &
    cx_addyofxgrowth, cx_addyofxexponential, cx_addyofxlogistic, cx_addlegend, &
    cx_addlegendtargetex, cx_addlegendframe, cx_addlegendframeex

  interface

    ! Charts

    !> Starts the library for several charts: texts and data then live until cx_terminate_, where
    !> they otherwise go with the last chart. Returns 0.
    integer(c_int64_t) function cx_init(procedure_handle, dictionary, procedure_name, &
        procedure_name_length) bind(C, name="cx_init_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      character(kind=c_char), intent(in) :: procedure_name(*)
      integer(c_int64_t), intent(in) :: procedure_name_length
    end function

    !> Makes an empty chart and gives it the procedure's data. Returns the chart handle, from 0
    !> upward.
    integer(c_int64_t) function cx_createchart(procedure_handle, dictionary, procedure_name, &
        procedure_name_length) bind(C, name="cx_createchart_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      character(kind=c_char), intent(in) :: procedure_name(*)
      integer(c_int64_t), intent(in) :: procedure_name_length
    end function

    !> Makes a chart with one data source, an outer frame "graph_1" that clips and in it a frame
    !> "data_1" that does not. Returns the chart handle.
    integer(c_int64_t) function cx_createchartex(procedure_handle, dictionary, procedure_name, &
        procedure_name_length, chart, source, graph, data) bind(C, name="cx_createchartex_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      character(kind=c_char), intent(in) :: procedure_name(*)
      integer(c_int64_t), intent(in) :: procedure_name_length
      integer(c_int64_t), intent(inout) :: chart, source, graph, data
    end function

    !> Makes a chart with one data source, an outer frame "graph_1" and in it a frame "pie_1" that
    !> clips. Returns the chart handle.
    integer(c_int64_t) function cx_createpiechart(procedure_handle, dictionary, procedure_name, &
        procedure_name_length, chart, source, graph, pie) bind(C, name="cx_createpiechart_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      character(kind=c_char), intent(in) :: procedure_name(*)
      integer(c_int64_t), intent(in) :: procedure_name_length
      integer(c_int64_t), intent(inout) :: chart, source, graph, pie
    end function

    !> Says what the output side does to the chart after it is built. Returns 1, or -1 for another
    !> type, silently.
    integer(c_int64_t) function cx_setcharttype(chart, chart_type) &
        bind(C, name="cx_setcharttype_")
      import
      integer(c_int64_t), intent(in) :: chart, chart_type
    end function

    !> Names the template that the chart is drawn with. Returns 0, or -1 for an empty name,
    !> silently.
    integer(c_int64_t) function cx_setcharttemplate(chart, template_name, template_name_length) &
        bind(C, name="cx_setcharttemplate_")
      import
      integer(c_int64_t), intent(in) :: chart
      character(kind=c_char), intent(in) :: template_name(*)
      integer(c_int64_t), intent(in) :: template_name_length
    end function

    !> Describes the chart for readers who do not see it. Returns 0, or -1 for an empty text,
    !> silently.
    integer(c_int64_t) function cx_setchartdescription(chart, text, text_length) &
        bind(C, name="cx_setchartdescription_")
      import
      integer(c_int64_t), intent(in) :: chart
      character(kind=c_char), intent(in) :: text(*)
      integer(c_int64_t), intent(in) :: text_length
    end function

    !> Describes the chart for readers who do not see it, by a string handle. Returns 0, or -1 for
    !> an empty text, silently.
    integer(c_int64_t) function cx_createchartdescription(chart, description) &
        bind(C, name="cx_createchartdescription_")
      import
      integer(c_int64_t), intent(in) :: chart, description
    end function

    !> Says which split groups the chart stands for: "label: value, label: value" of the split
    !> variables goes with the chart. Returns 0, or -1 for an empty text, silently. Reports that
    !> there are no data.
    integer(c_int64_t) function cx_setsplitcomposite(chart, split_cells, ignored1) &
        bind(C, name="cx_setsplitcomposite_")
      import
      integer(c_int64_t), intent(in) :: chart
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: ignored1
    end function

    !> Completes the chart, sends it and forgets it; it is gone also when sending failed. Returns 0.
    integer(c_int64_t) function cx_endchart(chart) bind(C, name="cx_endchart_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Discards a chart without sending it; a bad chart handle is ignored silently. Returns 0 in
    !> every case.
    integer(c_int64_t) function cx_killchart(chart) bind(C, name="cx_killchart_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Discards every chart without sending it; chart handles start at 0 again. Returns 0 in every
    !> case.
    integer(c_int64_t) function cx_killcharts() bind(C, name="cx_killcharts_")
      import
    end function

    !> Ends the library with every chart, text and data source in it; a second time it does nothing.
    !> Returns 0.
    integer(c_int64_t) function cx_terminate() bind(C, name="cx_terminate_")
      import
    end function

    !> Does nothing; kept for its callers. Returns -1 in every case.
    integer(c_int64_t) function cx_dumpxml(ignored1, ignored2, ignored3) &
        bind(C, name="cx_dumpxml_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, ignored3
    end function

    !> Does nothing; kept for its callers. Returns -1 in every case.
    integer(c_int64_t) function cx_statisticssummary(ignored1, ignored2, ignored3, ignored4) &
        bind(C, name="cx_statisticssummary_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, ignored3, ignored4
    end function

    ! Texts

    !> Registers the text of a string-table key in the output language; an unknown key stands for
    !> itself. Returns the new string handle.
    integer(c_int64_t) function cx_nstring(ignored, key, key_length) bind(C, name="cx_nstring_")
      import
      integer(c_int64_t), intent(in) :: ignored
      character(kind=c_char), intent(in) :: key(*)
      integer(c_int64_t), intent(in) :: key_length
    end function

    !> Registers a text as it is. Returns the new string handle.
    integer(c_int64_t) function cx_string(ignored, text, text_length) bind(C, name="cx_string_")
      import
      integer(c_int64_t), intent(in) :: ignored
      character(kind=c_char), intent(in) :: text(*)
      integer(c_int64_t), intent(in) :: text_length
    end function

    !> Registers a text as it is; the same as cx_string_. Returns the new string handle.
    integer(c_int64_t) function cx_nstringnotranslate(ignored, text, text_length) &
        bind(C, name="cx_nstringnotranslate_")
      import
      integer(c_int64_t), intent(in) :: ignored
      character(kind=c_char), intent(in) :: text(*)
      integer(c_int64_t), intent(in) :: text_length
    end function

    !> Opens a composite text, whose parameters cx_addparameter_ adds and which
    !> cx_endcompositestring_ closes. Returns the composite's string handle.
    integer(c_int64_t) function cx_compositestring(ignored, pattern, pattern_length) &
        bind(C, name="cx_compositestring_")
      import
      integer(c_int64_t), intent(in) :: ignored
      character(kind=c_char), intent(in) :: pattern(*)
      integer(c_int64_t), intent(in) :: pattern_length
    end function

    !> Adds the next parameter to an open composite. Returns 0. Reports a string handle that is no
    !> open composite.
    integer(c_int64_t) function cx_addparameter(ignored, composite, parameter) &
        bind(C, name="cx_addparameter_")
      import
      integer(c_int64_t), intent(in) :: ignored, composite, parameter
    end function

    !> Opens a repeat list: the parameters that follow are its items until cx_endrepeat_. Returns 0.
    !> Reports a string handle that is no open composite.
    integer(c_int64_t) function cx_beginrepeat(ignored, composite) bind(C, name="cx_beginrepeat_")
      import
      integer(c_int64_t), intent(in) :: ignored, composite
    end function

    !> Closes a repeat list. Returns 0. Reports a string handle that is no open composite.
    integer(c_int64_t) function cx_endrepeat(ignored, composite) bind(C, name="cx_endrepeat_")
      import
      integer(c_int64_t), intent(in) :: ignored, composite
    end function

    !> Closes a composite and puts its text together. Returns the composite's own string handle.
    !> Reports a string handle that is no open composite.
    integer(c_int64_t) function cx_endcompositestring(ignored, composite) &
        bind(C, name="cx_endcompositestring_")
      import
      integer(c_int64_t), intent(in) :: ignored, composite
    end function

    !> Registers a style name: the text of the kind, "_" and the number, such as "title_1". Returns
    !> the new string handle.
    integer(c_int64_t) function cx_stylestring(ignored, style_kind, style_index) &
        bind(C, name="cx_stylestring_")
      import
      integer(c_int64_t), intent(in) :: ignored, style_kind, style_index
    end function

    !> Registers the text of a whole number, as for machines. Returns the new string handle.
    integer(c_int64_t) function cx_integer(ignored, number) bind(C, name="cx_integer_")
      import
      integer(c_int64_t), intent(in) :: ignored, number
    end function

    !> Registers the text of a whole number in a display format. Returns the new string handle, or
    !> -1 for a format that shows no number, silently.
    integer(c_int64_t) function cx_ivalue(ignored, number, format) bind(C, name="cx_ivalue_")
      import
      integer(c_int64_t), intent(in) :: ignored, number, format
    end function

    !> Registers the text of a whole number in a display format, as cx_lrvalueasstring_ does.
    !> Returns the new string handle, or -1 for a format that shows no numbers, silently.
    integer(c_int64_t) function cx_ivalueasstring(number, format) &
        bind(C, name="cx_ivalueasstring_")
      import
      integer(c_int64_t), intent(in) :: number, format
    end function

    !> Registers the text of a number, as for machines: the shortest that reads back to the same
    !> number. Returns the new string handle, or -1 for the system-missing value, silently.
    integer(c_int64_t) function cx_double(number) bind(C, name="cx_double_")
      import
      real(c_double), intent(in) :: number
    end function

    !> Registers the text of a number in a display format. Returns the new string handle, or -1 for
    !> the system-missing value and for a format that shows no number, silently.
    integer(c_int64_t) function cx_lrvalue(ignored, number, format) bind(C, name="cx_lrvalue_")
      import
      integer(c_int64_t), intent(in) :: ignored
      real(c_double), intent(in) :: number
      integer(c_int64_t), intent(in) :: format
    end function

    !> Registers the text of a number in a display format of numbers or dates. In a format of days
    !> of the week (26) or months (27) a number of up to 86400 is a code: 1 is Sunday or January,
    !> and codes go round. Returns the new string handle, or -1 for the system-missing value or a
    !> format that shows no numbers, silently.
    integer(c_int64_t) function cx_lrvalueasstring(number, format) &
        bind(C, name="cx_lrvalueasstring_")
      import
      real(c_double), intent(in) :: number
      integer(c_int64_t), intent(in) :: format
    end function

    !> Registers a value in its variable's display format. Returns the new string handle, or -1 for
    !> the system-missing value, silently. Reports a variable number out of range; that there are no
    !> data.
    integer(c_int64_t) function cx_value(variable_number, cells) bind(C, name="cx_value_")
      import
      integer(c_int64_t), intent(in) :: variable_number
      type(*), intent(in) :: cells(*)
    end function

    !> Registers a mean in its variable's display format with two more decimals. Returns the new
    !> string handle, or -1 for the system-missing value, silently. Reports a variable number out of
    !> range; that there are no data.
    integer(c_int64_t) function cx_meanvalue(variable_number, cells) bind(C, name="cx_meanvalue_")
      import
      integer(c_int64_t), intent(in) :: variable_number
      type(*), intent(in) :: cells(*)
    end function

    !> Registers a value's label, or the value in its display format when it has none. Returns the
    !> new string handle; the missing-value label for the system-missing value. Reports a variable
    !> number out of range; that there are no data.
    integer(c_int64_t) function cx_valuelabel(ignored1, variable_number, cells) &
        bind(C, name="cx_valuelabel_")
      import
      integer(c_int64_t), intent(in) :: ignored1, variable_number
      type(*), intent(in) :: cells(*)
    end function

    !> The same, shortened at a character. Returns the new string handle. Reports a variable number
    !> out of range; that there are no data.
    integer(c_int64_t) function cx_valuelabelshort(variable_number, cells, max_length) &
        bind(C, name="cx_valuelabelshort_")
      import
      integer(c_int64_t), intent(in) :: variable_number
      type(*), intent(in) :: cells(*)
      integer(c_int64_t), intent(in) :: max_length
    end function

    !> Registers a value's label in the string table's pattern for objects. Returns the new string
    !> handle. Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_objectlabel(variable_number, cells) &
        bind(C, name="cx_objectlabel_")
      import
      integer(c_int64_t), intent(in) :: variable_number
      type(*), intent(in) :: cells(*)
    end function

    !> Registers one text of all split variables and their values. Returns the new string handle.
    !> Reports that there are no data, or no values of the split variables.
    integer(c_int64_t) function cx_splitlist(ignored1, split_cells, ignored2, show_name, &
        show_label, show_value, show_value_label) bind(C, name="cx_splitlist_")
      import
      integer(c_int64_t), intent(in) :: ignored1
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: ignored2, show_name, show_label, show_value, &
        show_value_label
    end function

    !> Registers "label: value, label: value" of the split variables. Returns the new string handle.
    !> Reports that there are no data, or no values of the split variables.
    integer(c_int64_t) function cx_splitheader(split_cells, ignored1) &
        bind(C, name="cx_splitheader_")
      import
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: ignored1
    end function

    !> Registers a label followed by all split variables and their values. Returns the new string
    !> handle; the label itself when there are no split variables, or when the words of the string
    !> table are asked for and the values are not. Reports a bad label; that there are no data.
    integer(c_int64_t) function cx_splitvariableinfo(ignored, label, split_cells, split_count, &
        show_name, show_label, show_value, show_value_label, show_splits, keyed) &
        bind(C, name="cx_splitvariableinfo_")
      import
      integer(c_int64_t), intent(in) :: ignored, label
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: split_count, show_name, show_label, show_value, &
        show_value_label, show_splits, keyed
    end function

    !> Registers the text that names the weight variable. Returns the new string handle, or -1 for a
    !> number of 0 or less, silently; that of the unfinished text when the label could not be added.
    !> Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_weightinfo(ignored1, ignored2, weight_number, tells_cases) &
        bind(C, name="cx_weightinfo_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, weight_number, tells_cases
    end function

    !> Registers a variable's name. Returns the new string handle. Reports a variable number out of
    !> range; that there are no data.
    integer(c_int64_t) function cx_variablename(ignored1, ignored2, variable_number) &
        bind(C, name="cx_variablename_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, variable_number
    end function

    !> Registers a variable's label, or its name when it has none. Returns the new string handle.
    !> Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_variablelabel(ignored1, ignored2, variable_number) &
        bind(C, name="cx_variablelabel_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, variable_number
    end function

    !> Registers the label of a variable of another data set than the charts'. Returns the new
    !> string handle, or -1 when the charts have no data, silently. Reports a variable number out of
    !> range.
    integer(c_int64_t) function cx_variablelabelfromdictionary(procedure_handle, dictionary, &
        variable_number) bind(C, name="cx_variablelabelfromdictionary_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      integer(c_int64_t), intent(in) :: variable_number
    end function

    !> Hands a text to the output system. Returns the output system's cell handle. Reports an empty
    !> text.
    integer(c_int64_t) function cx_tosk(ignored, string) bind(C, name="cx_tosk_")
      import
      integer(c_int64_t), intent(in) :: ignored, string
    end function

    ! Variables and data

    !> Adds a data source, named "source" and its number from 0. Returns the new source.
    integer(c_int64_t) function cx_addsource(chart) bind(C, name="cx_addsource_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Declares a variable of the procedure as a column of a source, with its label and, when it is
    !> not categorical, its display format. Returns the new variable. Reports a variable number out
    !> of range; that there are no data.
    integer(c_int64_t) function cx_addvariable(chart, source, variable_number, categorical) &
        bind(C, name="cx_addvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, source, variable_number, categorical
    end function

    !> Declares a variable of the procedure whose values label others. Returns the new variable.
    !> Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_addlabelingvariable(chart, source, variable_number, &
        categorical) bind(C, name="cx_addlabelingvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, source, variable_number, categorical
    end function

    !> Declares the variable of the procedure that weights the cases. Returns the new variable.
    !> Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_addweightvariable(chart, source, variable_number) &
        bind(C, name="cx_addweightvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, source, variable_number
    end function

    !> Points a variable node at another variable of the procedure, whose label and display format
    !> it takes; it keeps the column that its values are stored in. Returns the variable. Reports a
    !> variable number out of range; that there are no data.
    integer(c_int64_t) function cx_setvariable(chart, variable, variable_number, categorical) &
        bind(C, name="cx_setvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, variable_number, categorical
    end function

    !> Marks a variable as computed outside the chart. Returns the variable's meta.
    integer(c_int64_t) function cx_setaggregateexternal(chart, variable) &
        bind(C, name="cx_setaggregateexternal_")
      import
      integer(c_int64_t), intent(in) :: chart, variable
    end function

    !> Labels a variable; backslash and "n" become a line feed. Returns the variable.
    integer(c_int64_t) function cx_setvariablelabel(chart, variable, caption) &
        bind(C, name="cx_setvariablelabel_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, caption
    end function

    !> Gives a variable its short label; backslash and "n" become a line feed. Returns the variable.
    integer(c_int64_t) function cx_setvariablename(chart, variable, name) &
        bind(C, name="cx_setvariablename_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, name
    end function

    !> Makes a variable a constant. Returns the variable.
    integer(c_int64_t) function cx_setvariablevalue(chart, variable, value_string) &
        bind(C, name="cx_setvariablevalue_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, value_string
    end function

    !> Says whether the values of a variable are categories, which have no display format. Returns
    !> the variable.
    integer(c_int64_t) function cx_setvariablecategorical(chart, variable, categorical) &
        bind(C, name="cx_setvariablecategorical_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, categorical
    end function

    !> Registers a variable's label, or its short label when it has none. Returns the new string
    !> handle.
    integer(c_int64_t) function cx_getvariablelabel(chart, variable) &
        bind(C, name="cx_getvariablelabel_")
      import
      integer(c_int64_t), intent(in) :: chart, variable
    end function

    !> Declares a column that the procedure computes. The source may also be a variable: the column
    !> then joins that variable's source. The names 135, 140 and 141 stand for case number, count
    !> and percentage; any other is numbered. Returns the new variable.
    integer(c_int64_t) function cx_addaggregate(chart, source, name, categorical, label, &
        short_label, domain) bind(C, name="cx_addaggregate_")
      import
      integer(c_int64_t), intent(in) :: chart, source, name, categorical, label, short_label, &
        domain
    end function

    !> Adds a computed variable that weights cases. Returns the new variable.
    integer(c_int64_t) function cx_addweightaggregate(chart, source, name, label) &
        bind(C, name="cx_addweightaggregate_")
      import
      integer(c_int64_t), intent(in) :: chart, source, name, label
    end function

    !> Declares a column that the procedure computes and whose values label others, else as
    !> cx_addaggregate_ does. Returns the new variable.
    integer(c_int64_t) function cx_addlabelingaggregate(chart, source, name, categorical, label, &
        short_label, domain) bind(C, name="cx_addlabelingaggregate_")
      import
      integer(c_int64_t), intent(in) :: chart, source, name, categorical, label, short_label, &
        domain
    end function

    !> Begins a list of variables. Returns the new list, from 0 upward.
    integer(c_int64_t) function cx_beginvariablelist(chart) bind(C, name="cx_beginvariablelist_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Adds a variable to a list; it may be there already. Returns the list. Reports a list that was
    !> not begun; a node that is no variable.
    integer(c_int64_t) function cx_addtovariablelist(chart, list, variable) &
        bind(C, name="cx_addtovariablelist_")
      import
      integer(c_int64_t), intent(in) :: chart, list, variable
    end function

    !> Declares the variable that shows all variables of a list at once, labelled as the x axis in
    !> role 1, else as the y axis. Returns the new variable. Reports a list that was not begun; a
    !> bad role.
    integer(c_int64_t) function cx_addoverlayvariable(chart, list, role) &
        bind(C, name="cx_addoverlayvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, list, role
    end function

    !> The same in role 2. Returns the new variable. Reports a list that was not begun.
    integer(c_int64_t) function cx_addrangevariable(chart, list) &
        bind(C, name="cx_addrangevariable_")
      import
      integer(c_int64_t), intent(in) :: chart, list
    end function

    !> Declares the variable that shows the variables of a list side by side, each with a constant
    !> that tells its label. Returns the new variable. Reports a list that was not begun.
    integer(c_int64_t) function cx_addmatrixvariable(chart, list) &
        bind(C, name="cx_addmatrixvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, list
    end function

    !> Tells a variable's display format. Returns the format, packed as type * 65536 + width * 256 +
    !> decimals. Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_getvariableformat(chart, variable_number) &
        bind(C, name="cx_getvariableformat_")
      import
      integer(c_int64_t), intent(in) :: chart, variable_number
    end function

    !> Replaces a variable's display format; a type that is neither of numbers nor of dates leaves
    !> none. Returns the variable.
    integer(c_int64_t) function cx_setvariableformat(chart, variable, packed_format) &
        bind(C, name="cx_setvariableformat_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, packed_format
    end function

    !> Marks a variable for a log scale. Returns the chart argument in every case.
    integer(c_int64_t) function cx_createlogvar(chart, variable) bind(C, name="cx_createlogvar_")
      import
      integer(c_int64_t), intent(in) :: chart, variable
    end function

    !> Shows one value of a variable under another text. Returns the new relabel, or -1 for a text
    !> that XML does not allow, silently. Reports a node that is no variable.
    integer(c_int64_t) function cx_addrelabel(chart, variable, from, to) &
        bind(C, name="cx_addrelabel_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, from, to
    end function

    !> Shows the values of a variable under their value labels. Returns the variable. Reports a node
    !> that is no variable; a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_addrelabels(chart, variable, variable_number) &
        bind(C, name="cx_addrelabels_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, variable_number
    end function

    !> Has every later data value stored as a number. Returns the chart argument in every case.
    integer(c_int64_t) function cx_alldatadoubles(chart) bind(C, name="cx_alldatadoubles_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Starts the next row of data; a bad chart handle is refused silently. Returns the number of
    !> rows.
    integer(c_int64_t) function cx_addrow(chart, row_source) bind(C, name="cx_addrow_")
      import
      integer(c_int64_t), intent(in) :: chart, row_source
    end function

    !> Puts a text into the current row, as a number when it reads as one. A bad chart handle and a
    !> string handle of -1 are refused silently; a value that the chart refuses discards the whole
    !> chart. Returns 0, also when the node is no variable with a column.
    integer(c_int64_t) function cx_adddatavalue(chart, row_source, variable, value_string) &
        bind(C, name="cx_adddatavalue_")
      import
      integer(c_int64_t), intent(in) :: chart, row_source, variable, value_string
    end function

    !> Puts a number into the current row. A bad chart handle is refused silently; a value that the
    !> chart refuses discards the whole chart. Returns 0, also when the node is no variable with a
    !> column.
    integer(c_int64_t) function cx_adddoubledatavalue(chart, row_source, variable, value) &
        bind(C, name="cx_adddoubledatavalue_")
      import
      integer(c_int64_t), intent(in) :: chart, row_source, variable
      real(c_double), intent(in) :: value
    end function

    ! Frames, labels and facets

    !> Adds a frame to the document element (0) or to another frame. Returns the new frame. Reports
    !> any other parent.
    integer(c_int64_t) function cx_addframe(chart, parent, suffix) bind(C, name="cx_addframe_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, suffix
    end function

    !> Says whether a frame clips its elements. Returns the frame.
    integer(c_int64_t) function cx_setframeclipping(chart, frame, clip) &
        bind(C, name="cx_setframeclipping_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, clip
    end function

    !> Gives a node its label, in place of one that it has. Returns the new label.
    integer(c_int64_t) function cx_addlabel(chart, parent, suffix, content) &
        bind(C, name="cx_addlabel_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, suffix, content
    end function

    !> Adds a frame with a label, such as a title (17), subtitle (16) or footnote (13). Returns the
    !> new frame.
    integer(c_int64_t) function cx_addframewithlabel(chart, parent, style_kind, style_index, &
        content) bind(C, name="cx_addframewithlabel_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, style_kind, style_index, content
    end function

    !> Adds a frame with the text of cx_splitheader_ as a subtitle. Returns the new frame. Reports
    !> that there are no data, or no values of the split variables.
    integer(c_int64_t) function cx_addsplitheaderex(chart, parent, split_cells, ignored1) &
        bind(C, name="cx_addsplitheaderex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: ignored1
    end function

    !> Gives a frame its facet labeling, at most one. Returns the frame's facet labeling, new or
    !> known. Reports a node that is no frame.
    integer(c_int64_t) function cx_addfacetlabeling(chart, frame) &
        bind(C, name="cx_addfacetlabeling_")
      import
      integer(c_int64_t), intent(in) :: chart, frame
    end function

    !> Adds the labels of one facet level. Returns the new facet label. Reports a node that is no
    !> facet labeling.
    integer(c_int64_t) function cx_addfacetlabel(chart, facet_labeling, suffix, level, reverse) &
        bind(C, name="cx_addfacetlabel_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_labeling, suffix, level, reverse
    end function

    !> Gives the panels of a facet label a style. Returns the facet label. Reports a node that is no
    !> facet label.
    integer(c_int64_t) function cx_setfacetlabelcellstyle(chart, facet_label, suffix) &
        bind(C, name="cx_setfacetlabelcellstyle_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_label, suffix
    end function

    !> Finds the first facet label of a level. Returns the facet label, or -1 when there is none,
    !> silently. Reports a node that is no facet labeling.
    integer(c_int64_t) function cx_getfacetlabel(chart, facet_labeling, level) &
        bind(C, name="cx_getfacetlabel_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_labeling, level
    end function

    !> Moves a facet label to another level. Returns the facet label, or -1 for any other node,
    !> silently.
    integer(c_int64_t) function cx_setfacetlabellevel(chart, facet_label, level_text) &
        bind(C, name="cx_setfacetlabellevel_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_label, level_text
    end function

    !> Sets the gap between the panels of a facet label or facet variable. Returns the facet label
    !> or facet variable, or -1 for any other node, silently.
    integer(c_int64_t) function cx_setfacetlabelgap(chart, facet_label_or_variable, gap) &
        bind(C, name="cx_setfacetlabelgap_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_label_or_variable, gap
    end function

    !> Sets the shape of the panels. Returns the facet labeling. Reports a node that is no facet
    !> labeling.
    integer(c_int64_t) function cx_setfacetlabelingcellaspect(chart, facet_labeling, aspect) &
        bind(C, name="cx_setfacetlabelingcellaspect_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_labeling
      real(c_double), intent(in) :: aspect
    end function

    !> Gives a frame its table of panels, at most one; one anywhere below the frame counts. Returns
    !> the frame's table facet, new or known. Reports a node that is no frame.
    integer(c_int64_t) function cx_addtablefacet(chart, frame) bind(C, name="cx_addtablefacet_")
      import
      integer(c_int64_t), intent(in) :: chart, frame
    end function

    !> Has a frame split into panels along its coordinates. Returns the new coordinate facet.
    !> Reports a node that is no frame.
    integer(c_int64_t) function cx_addcoordinatefacet(chart, frame) &
        bind(C, name="cx_addcoordinatefacet_")
      import
      integer(c_int64_t), intent(in) :: chart, frame
    end function

    !> Adds panels within panels: the first part of a nest is the outer, the second the inner one,
    !> and there are no more. Returns the new nest. Reports a nest that has both parts.
    integer(c_int64_t) function cx_addnest(chart, facet) bind(C, name="cx_addnest_")
      import
      integer(c_int64_t), intent(in) :: chart, facet
    end function

    !> Adds panels beside panels. Returns the new blend. Reports a nest that has both parts.
    integer(c_int64_t) function cx_addblend(chart, facet) bind(C, name="cx_addblend_")
      import
      integer(c_int64_t), intent(in) :: chart, facet
    end function

    !> Adds panels by every combination. Returns the new cross. Reports a nest that has both parts.
    integer(c_int64_t) function cx_addcross(chart, facet) bind(C, name="cx_addcross_")
      import
      integer(c_int64_t), intent(in) :: chart, facet
    end function

    !> Splits by a variable, along a role. Returns the new facet variable. Reports a role outside 1
    !> to 7; a nest that has both parts.
    integer(c_int64_t) function cx_addfacetvariable(chart, facet, role, variable) &
        bind(C, name="cx_addfacetvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, facet, role, variable
    end function

    !> Gives an element or grid lines a style of their own in some panels. Returns the new facet
    !> style. Reports any other parent.
    integer(c_int64_t) function cx_addfacetstyle(chart, element_or_grid_lines, when, suffix) &
        bind(C, name="CX_AddFacetStyle")
      import
      integer(c_int64_t), intent(in) :: chart, element_or_grid_lines, when, suffix
    end function

    !> Changes the coordinates of a frame, such as 30 "transpose", 31 "polar" or 104 "rectangular".
    !> Returns the new coordinate transform.
    integer(c_int64_t) function cx_addcoordinatetransform(chart, frame, method) &
        bind(C, name="cx_addcoordinatetransform_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, method
    end function

    !> Shows a frame as a space of three dimensions, with a wire frame and three planes. Returns the
    !> parent. Reports a node that is no frame.
    integer(c_int64_t) function cx_addxyzwireframe(chart, parent) &
        bind(C, name="cx_addxyzwireframe_")
      import
      integer(c_int64_t), intent(in) :: chart, parent
    end function

    !> Shows a frame as a space of three dimensions, with three planes. Returns the parent. Reports
    !> a node that is no frame.
    integer(c_int64_t) function cx_addxyzbackplanes(chart, parent) &
        bind(C, name="cx_addxyzbackplanes_")
      import
      integer(c_int64_t), intent(in) :: chart, parent
    end function

    ! Elements and aesthetics

    !> Adds an element to a frame or an element group. Returns the new element. Reports any other
    !> parent.
    integer(c_int64_t) function cx_addelement(chart, parent, type, suffix) &
        bind(C, name="cx_addelement_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, type, suffix
    end function

    !> Adds a group for elements to a frame. Returns the new element group. Reports a node that is
    !> no frame.
    integer(c_int64_t) function cx_addelementgroup(chart, frame, suffix) &
        bind(C, name="cx_addelementgroup_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, suffix
    end function

    !> Adds an element with its x and y. Returns the new element.
    integer(c_int64_t) function cx_addxyelementex(chart, parent, style_index, type, x, y, &
        style_kind, element) bind(C, name="cx_addxyelementex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, style_index, type, x, y, style_kind
      integer(c_int64_t), intent(inout) :: element
    end function

    !> Adds a matrix of scatterplots to a frame, every variable against every other, with margins of
    !> 15%. Returns the new element. Reports a node that is no variable.
    integer(c_int64_t) function cx_addsplomelement(chart, parent, variables, variable_count, &
        element) bind(C, name="cx_addsplomelement_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variables(*), variable_count
      integer(c_int64_t), intent(inout) :: element
    end function

    !> Adds a matrix of scatterplots to a frame, every variable against every other, with margins
    !> and mappings. Returns the new element. Reports a node that is no variable.
    integer(c_int64_t) function cx_addsplomelementex(chart, parent, variables, variable_count, &
        element, x_upper_margin, x_lower_margin, y_upper_margin, y_lower_margin, x_upper_mapping, &
        x_lower_mapping, y_upper_mapping, y_lower_mapping) bind(C, name="cx_addsplomelementex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variables(*), variable_count
      integer(c_int64_t), intent(inout) :: element
      integer(c_int64_t), intent(in) :: x_upper_margin, x_lower_margin, y_upper_margin, &
        y_lower_margin, x_upper_mapping, x_lower_mapping, y_upper_mapping, y_lower_mapping
    end function

    !> Names an element or a guide, as a legend shows it. Returns the element or guide, or -1 for
    !> any other node, silently.
    integer(c_int64_t) function cx_setelementname(chart, element, name) &
        bind(C, name="cx_setelementname_")
      import
      integer(c_int64_t), intent(in) :: chart, element, name
    end function

    !> Says how the points of an element are stacked into dots. Returns the element, or -1 for any
    !> other node, silently.
    integer(c_int64_t) function cx_setelementdot(chart, element, dot) &
        bind(C, name="cx_setelementdot_")
      import
      integer(c_int64_t), intent(in) :: chart, element, dot
    end function

    !> Says how parts of an element at one place give way. Returns the element. Reports a node that
    !> is no element.
    integer(c_int64_t) function cx_setelementpositionmodifier(chart, element, modifier) &
        bind(C, name="cx_setelementpositionmodifier_")
      import
      integer(c_int64_t), intent(in) :: chart, element, modifier
    end function

    !> Adds an element over hexagonal bins of x and y, each sized by the cases in it. Returns the
    !> new element. Reports any parent but a frame or an element group; a node that is no variable.
    integer(c_int64_t) function cx_addbinnedelement(chart, parent, type, suffix, x, y) &
        bind(C, name="cx_addbinnedelement_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, type, suffix, x, y
    end function

    !> Gives an element a position of its own, which takes x, y and a statistic. Returns the new
    !> position. Reports a node that is no element.
    integer(c_int64_t) function cx_addposition(chart, element) bind(C, name="cx_addposition_")
      import
      integer(c_int64_t), intent(in) :: chart, element
    end function

    !> Puts a variable at x of an element or position. Returns the new x. Reports any other parent;
    !> a node that is no variable.
    integer(c_int64_t) function cx_addx(chart, parent, variable) bind(C, name="cx_addx_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Puts a variable at y of an element or position. Returns the new y. Reports any other parent;
    !> a node that is no variable.
    integer(c_int64_t) function cx_addy(chart, parent, variable) bind(C, name="cx_addy_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Puts a variable at z of an element or position. Returns the new z. Reports any other parent;
    !> a node that is no variable.
    integer(c_int64_t) function cx_addz(chart, parent, variable) bind(C, name="cx_addz_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Puts a variable at the angle of an element or position. Returns the new theta. Reports any
    !> other parent; a node that is no variable.
    integer(c_int64_t) function cx_addtheta(chart, parent, variable) bind(C, name="cx_addtheta_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Colors an element by a variable. Returns the new color. Reports a node that is no element.
    integer(c_int64_t) function cx_addcolor(chart, element, variable) bind(C, name="cx_addcolor_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Groups an element by a variable, in the styles of the default cycle; points become hollow.
    !> Returns the new styleBy. Reports a node that is no element.
    integer(c_int64_t) function cx_addstyleby(chart, element, variable) &
        bind(C, name="cx_addstyleby_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Groups an element by a variable, one color a group. Returns the new styleBy. Reports a node
    !> that is no element.
    integer(c_int64_t) function cx_addstylebycolor(chart, element, variable) &
        bind(C, name="cx_addstylebycolor_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Groups an element by a variable, one pattern a group. Returns the new styleBy. Reports a node
    !> that is no element.
    integer(c_int64_t) function cx_addstylebypattern(chart, element, variable) &
        bind(C, name="cx_addstylebypattern_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Groups an element by a variable, one color and pattern a group. Returns the new styleBy.
    !> Reports a node that is no element.
    integer(c_int64_t) function cx_addstylebycolorandpattern(chart, element, variable) &
        bind(C, name="cx_addstylebycolorandpattern_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Draws an element once for each category of a variable. Returns the new split. Reports a node
    !> that is no element.
    integer(c_int64_t) function cx_addsplit(chart, element, variable) bind(C, name="cx_addsplit_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Labels the parts of an element with the values of a variable. Returns the new labeling.
    !> Reports a node that is no element.
    integer(c_int64_t) function cx_addlabeling(chart, element, variable) &
        bind(C, name="cx_addlabeling_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> The same with a style of its own. Returns the new labeling. Reports a node that is no
    !> element.
    integer(c_int64_t) function cx_addlabelingsuffix(chart, element, variable, label_style) &
        bind(C, name="cx_addlabelingsuffix_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable, label_style
    end function

    !> The same with the style of labels inside. Returns the new labeling. Reports a node that is no
    !> element.
    integer(c_int64_t) function cx_addlabelinginside(chart, element, variable) &
        bind(C, name="cx_addlabelinginside_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Notes which summary of a variable the chart shows, unless one is noted; the values are those
    !> of the summary, such as a percentile's. Returns the code, or -1 for a code that is no
    !> summary, silently.
    integer(c_int64_t) function cx_setsummaryfunction(chart, variable, summary, first_value, &
        second_value) bind(C, name="cx_setsummaryfunction_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, summary
      real(c_double), intent(in) :: first_value, second_value
    end function

    !> Has the renderer compute a statistic for a node. Returns the new statistic.
    integer(c_int64_t) function cx_addstatistic(chart, parent, method) &
        bind(C, name="cx_addstatistic_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, method
    end function

    !> Adds a parameter to a statistic, transform or guide. Returns the new parameter.
    integer(c_int64_t) function cx_addparam(chart, statistic, name, value_string) &
        bind(C, name="cx_addparam_")
      import
      integer(c_int64_t), intent(in) :: chart, statistic, name, value_string
    end function

    !> Says whether labels of an element are shown that would cover others. Returns the element.
    integer(c_int64_t) function cx_setdisplayoverlappinglabels(chart, element, display) &
        bind(C, name="cx_setdisplayoverlappinglabels_")
      import
      integer(c_int64_t), intent(in) :: chart, element, display
    end function

    !> Says what happens to labels of an element that would cover others. Returns the element.
    integer(c_int64_t) function cx_setlabelcollisionhandling(chart, element, handling) &
        bind(C, name="cx_setlabelcollisionhandling_")
      import
      integer(c_int64_t), intent(in) :: chart, element, handling
    end function

    ! Dimensions, axes and guides

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

    !> Adds an axis to a dimension. Returns the new axis.
    integer(c_int64_t) function cx_addaxis(chart, parent, suffix, opposite) &
        bind(C, name="cx_addaxis_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, suffix, opposite
    end function

    !> Adds the labelled ticks to an axis. Returns the new ticks.
    integer(c_int64_t) function cx_addmajorticks(chart, parent, position, grid_lines, length, &
        label_angle, stagger, delta) bind(C, name="cx_addmajorticks_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, position, grid_lines, length, label_angle, &
        stagger, delta
    end function

    !> Adds the ticks between the major ones to an axis. Returns the new ticks. Reports that the
    !> mark style is taken, beside major ticks.
    integer(c_int64_t) function cx_addminorticks(chart, parent, position, grid_lines, length, &
        tick_count) bind(C, name="cx_addminorticks_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, position, grid_lines, length, tick_count
    end function

    !> Shows an axis in percent. Returns the node, also for a bad chart.
    integer(c_int64_t) function cx_setaxispercent(chart, node, format_parent) &
        bind(C, name="cx_setaxispercent_")
      import
      integer(c_int64_t), intent(in) :: chart, node, format_parent
    end function

    !> Turns off the "safe" parameter of the y scale. Returns -1 in every case.
    integer(c_int64_t) function cx_setlogunsafe(chart) bind(C, name="cx_setlogunsafe_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Gives a frame a dimension with axis and ticks. Returns the dimension, or -1 for an axis role
    !> outside 1 to 3, silently.
    integer(c_int64_t) function cx_adddimensionaxis(chart, parent, axis_role, domain, opposite, &
        style, axis, upper_margin, lower_margin, upper_mapping, lower_mapping) &
        bind(C, name="cx_adddimensionaxis_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, axis_role, domain, opposite
      integer(c_int64_t), intent(inout) :: style, axis
      integer(c_int64_t), intent(in) :: upper_margin, lower_margin, upper_mapping, lower_mapping
    end function

    !> Gives a frame x and y dimensions with axes and ticks. Returns the x dimension.
    integer(c_int64_t) function cx_addxydimension(chart, parent, x_domain, y_domain, x_opposite, &
        y_opposite, x_style, x_axis, y_style, y_axis, x_upper_margin, x_lower_margin, &
        y_upper_margin, y_lower_margin, x_upper_mapping, x_lower_mapping, y_upper_mapping, &
        y_lower_mapping) bind(C, name="cx_addxydimension_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, x_domain, y_domain, x_opposite, y_opposite
      integer(c_int64_t), intent(inout) :: x_style, x_axis, y_style, y_axis
      integer(c_int64_t), intent(in) :: x_upper_margin, x_lower_margin, y_upper_margin, &
        y_lower_margin, x_upper_mapping, x_lower_mapping, y_upper_mapping, y_lower_mapping
    end function

    !> Gives a frame x and y dimensions with axes, ticks and margins of 5%. Returns the x dimension.
    integer(c_int64_t) function cx_addxydimensionwithaxis(chart, parent, x_domain, y_domain, &
        x_opposite, y_opposite, x_style, x_axis, y_style, y_axis) &
        bind(C, name="cx_addxydimensionwithaxis_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, x_domain, y_domain, x_opposite, y_opposite
      integer(c_int64_t), intent(inout) :: x_style, x_axis, y_style, y_axis
    end function

    !> Gives a frame x and y dimensions with axes, ticks and margins of 0%, whose units have one
    !> length. Returns the x dimension.
    integer(c_int64_t) function cx_addxydimaxiswithsameratio(chart, parent, x_domain, y_domain, &
        x_opposite, y_opposite, same_ratio, x_style, x_axis, y_style, y_axis) &
        bind(C, name="cx_addxydimaxiswithsameratio_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, x_domain, y_domain, x_opposite, y_opposite, &
        same_ratio
      integer(c_int64_t), intent(inout) :: x_style, x_axis, y_style, y_axis
    end function

    !> Adds a guide to a frame. Returns the new guide. Reports a node that is no frame.
    integer(c_int64_t) function cx_addguide(chart, frame, type, suffix) &
        bind(C, name="cx_addguide_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, type, suffix
    end function

    !> Adds a line at a value of x to a frame. Returns the new guide. Reports a node that is no
    !> frame.
    integer(c_int64_t) function cx_addxreferenceline(chart, frame, value_string, guide_style) &
        bind(C, name="cx_addxreferenceline_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, value_string, guide_style
    end function

    !> Adds a line at a value of y to a frame. Returns the new guide. Reports a node that is no
    !> frame.
    integer(c_int64_t) function cx_addyreferenceline(chart, frame, value_string, guide_style) &
        bind(C, name="cx_addyreferenceline_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, value_string, guide_style
    end function

    !> Adds the curve of a function of x to a frame. Returns the new guide. Reports a node that is
    !> no frame.
    integer(c_int64_t) function cx_addyfunctionofx(chart, frame, function, guide_style) &
        bind(C, name="cx_addyfunctionofx_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, function, guide_style
    end function

    !> Adds a straight line to a frame and names it after its model. Returns the new guide, or -1
    !> for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxlinear(chart, frame, guide_style, intercept, slope, &
        date_scale) bind(C, name="cx_addyofxlinear_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: intercept, slope
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 + b2 * log(x) to a frame and names it after its model. Returns the new
    !> guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxlogarithmic(chart, frame, guide_style, b1, b2, &
        date_scale) bind(C, name="cx_addyofxlogarithmic_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 + b2 / x to a frame and names it after its model. Returns the new guide, or
    !> -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxinverse(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxinverse_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 + b2 * x + b3 * x*x to a frame and names it after its model. Returns the
    !> new guide; infinite coefficients are not looked at. Reports a node that is no frame, and then
    !> also that there is no curve to name.
    integer(c_int64_t) function cx_addyofxquadratic(chart, frame, guide_style, b1, b2, b3, &
        date_scale) bind(C, name="cx_addyofxquadratic_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2, b3
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 + b2 * x + b3 * x*x + b4 * x*x*x to a frame and names it after its model.
    !> Returns the new guide; infinite coefficients are not looked at. Reports a node that is no
    !> frame, and then also that there is no curve to name.
    integer(c_int64_t) function cx_addyofxcubic(chart, frame, guide_style, b1, b2, b3, b4, &
        date_scale) bind(C, name="cx_addyofxcubic_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2, b3, b4
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 * b2**x to a frame and names it after its model. Returns the new guide, or
    !> -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxcompound(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxcompound_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 * x**b2 to a frame and names it after its model. Returns the new guide, or
    !> -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxpower(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxpower_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve exp(b1 + b2 / x) to a frame and names it after its model. Returns the new
    !> guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxs(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxs_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve exp(b1 + b2 * x) to a frame and names it after its model. Returns the new
    !> guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxgrowth(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxgrowth_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 * exp(b2 * x) to a frame and names it after its model. Returns the new
    !> guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxexponential(chart, frame, guide_style, b1, b2, &
        date_scale) bind(C, name="cx_addyofxexponential_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve 1 / (b3 + b1 * b2**x) to a frame and names it after its model. Returns the new
    !> guide; infinite coefficients are not looked at. Reports a node that is no frame, and then
    !> also that there is no curve to name.
    integer(c_int64_t) function cx_addyofxlogistic(chart, frame, guide_style, b1, b2, b3, &
        date_scale) bind(C, name="cx_addyofxlogistic_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2, b3
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds a legend to a frame. Returns the new legend.
    integer(c_int64_t) function cx_addlegend(chart, parent, suffix) bind(C, name="cx_addlegend_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, suffix
    end function

    !> Has a legend explain a styleBy of an element or guide. Returns the new legend target. Reports
    !> a node that is no legend.
    integer(c_int64_t) function cx_addlegendtargetex(chart, parent, target, style_by, suffix) &
        bind(C, name="cx_addlegendtargetex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, target, style_by, suffix
    end function

    !> Adds a frame with a legend that explains an element's or guide's aesthetic. Returns the new
    !> legend.
    integer(c_int64_t) function cx_addlegendframe(chart, parent, target, style_index, aesthetic, &
        ignored, style, legend) bind(C, name="cx_addlegendframe_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, target, style_index, aesthetic, ignored
      integer(c_int64_t), intent(inout) :: style, legend
    end function

    !> Adds a frame with a legend that explains a styleBy of an element or guide. Returns the new
    !> legend.
    integer(c_int64_t) function cx_addlegendframeex(chart, parent, target, style_index, &
        style_by_node, style, legend) bind(C, name="cx_addlegendframeex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, target, style_index, style_by_node
      integer(c_int64_t), intent(inout) :: style, legend
    end function

  end interface

end module
