#pragma once
// Einstellungen, die zu einem Index gehören und in seiner Datei stehen.
struct IndexOptionen {};
