#pragma once

#include "forms/Form.h"
#include "forms/ListView.h"

namespace orlo {

// The pane of the tab Export/Search: the fields of a search and the flights that it found.
struct ExportPane {
    explicit ExportPane(Form& form);

    Picture picExport;
    Label lblExDeparture{picExport, "lblExDeparture", "&Departure ICAO"};
    TextBox txtExDeparture{picExport, "txtExDeparture"};
    Label lblExLeg{picExport, "lblExLeg", "&Leg ICAO"};
    TextBox txtExLeg{picExport, "txtExLeg"};
    Label lblExContinent{picExport, "lblExContinent", "&Continent"};
    TextBox txtExContinent{picExport, "txtExContinent"};
    Label lblExCountry{picExport, "lblExCountry", "C&ountry"};
    TextBox txtExCountry{picExport, "txtExCountry"};
    Label lblExAirline{picExport, "lblExAirline", "&Airline"};
    TextBox txtExAirline{picExport, "txtExAirline"};
    Label lblExportAircraft{picExport, "lblExportAircraft", "Ai&rcraft"};
    ComboBox cmExportAircraft{picExport, "cmExportAircraft"};
    Label lblExClass{picExport, "lblExClass", "Ai&rcraft Class"};
    ComboBox cmExClass{picExport, "cmExClass"};
    Label lblExZone{picExport, "lblExZone", "&Time Zone"};
    ComboBox cmExZone{picExport, "cmExZone"};
    Frame frIFRVFR{picExport, "frIFRVFR", "Flight Type"};
    CheckBox ckExportIFR{frIFRVFR, "ckExportIFR", "&IFR"};
    CheckBox ckExportVFR{frIFRVFR, "ckExportVFR", "&VFR"};
    Frame frSearchType{picExport, "frSearchType", "Search T&ype"};
    OptionButton opANDSearch{frSearchType, "opANDSearch", "AND"};
    OptionButton opORSearch{frSearchType, "opORSearch", "OR"};
    Label lblExPreview{picExport, "lblExPreview", "Previe&w"};
    ListView lvExPreview{picExport, "lvExPreview"};
    Button cmdEditFlight{picExport, "cmdEditFlight", "&Edit Flight"};
    Button cmdAddFlight{picExport, "cmdAddFlight", "Add &new Flight"};
    Button cmdDeleteFlight{picExport, "cmdDeleteFlight", "Delete Fli&ght"};
    Button cmdPreview{picExport, "cmdPreview", "&Search"};
    Button cmdExport{picExport, "cmdExport", "E&xport"};
    Button cmdExportRemainder{picExport, "cmdExportRemainder", "Export re&mainder"};
    Button cmdExportPrint{picExport, "cmdExportPrint", "&Print"};
};

}  // namespace orlo
