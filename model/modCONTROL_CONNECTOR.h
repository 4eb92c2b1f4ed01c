#pragma once

namespace wxbrg {

class clsPROCESS;

/// Finds the control connectors of a process, attaches them to its activities and fills them.
void CONTROL_CONNECTOR_Create(clsPROCESS& Process);
/// A connector for each ordered pair of activities that the rule FUNCTION_SENDS_CONTROL_TO_FUNCTION joins.
void CONTROL_CONNECTOR_Find_ARIS_Mapping(clsPROCESS& Process);
void CONTROL_CONNECTOR_SetupProperties(const clsPROCESS& Process);

}  // namespace wxbrg
