-- The record of one vehicle, under the vehicle's own name. Collection only keeps it open; what stands here is for those
-- who maintain the vehicle.

CREATE TABLE Version (
  Major SMALLINT NOT NULL,
  Minor INTEGER  NOT NULL
);
-- The next one is 1.2: an update takes 1.1 for "never".
INSERT INTO Version(Major, Minor) VALUES (1, 0);

CREATE TABLE Vehicle (
  VehicleID INTEGER PRIMARY KEY AUTOINCREMENT,
  Name      TEXT(80),
  Plate     TEXT(16),
  Remark    TEXT(255)
);

CREATE TABLE Instruments (
  InstrumentID INTEGER PRIMARY KEY AUTOINCREMENT,
  Instrument   TEXT(80),
  SerialNumber TEXT(40),
  Calibrated   DATETIME,
  Remark       TEXT(255)
);
