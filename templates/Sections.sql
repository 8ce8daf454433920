-- Sections.mdb: the road network for reference, shared with other programs of the vehicle. Delivered empty.

CREATE TABLE Version (
  Major SMALLINT NOT NULL,
  Minor INTEGER  NOT NULL
);
-- The next one is 1.2: an update takes 1.1 for "never".
INSERT INTO Version(Major, Minor) VALUES (1, 0);

CREATE TABLE Sections (
  SectionID         INTEGER PRIMARY KEY AUTOINCREMENT,
  FacilityName      TEXT(80),
  FacilityCode      TEXT(50),
  SectionName       TEXT(80),
  SectionCode       TEXT(50),
  Start             TEXT(50),
  "End"             TEXT(50),
  Heading           TEXT(16),
  Lane              TEXT(50),
  LaneNumber        TEXT(16),
  District          TEXT(80),
  Class             TEXT(50),
  Type              TEXT(50),
  -- layers of the pavement, for programs that measure its strength
  Layer1Modulus     SINGLE,
  Layer1            SINGLE,
  Layer2            SINGLE,
  Layer3            SINGLE,
  Layer1Temperature SINGLE,
  FixRigid          BOOLEAN DEFAULT 0,
  RigidLayer        SINGLE
);
