#pragma once

namespace wxbrg {

class clsPROCESS;

/// Finds the data connectors of a process, attaches them to its activities and fills them, as far as they can
/// be filled before the process has its containers.
void DATA_CONNECTOR_Create(clsPROCESS& Process);
/// In three passes over the activities: connectors between two of them, then those by which data enters that
/// no activity writes, then those by which data leaves that no activity reads.
/// Cost: the last two passes are linear in the activities and their data connections.
void DATA_CONNECTOR_Find_ARIS_Mapping(clsPROCESS& Process);
void DATA_CONNECTOR_SetupProperties(const clsPROCESS& Process);

}  // namespace wxbrg
