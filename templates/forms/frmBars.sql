-- The store of the value-bar pictures, never shown.

CREATE TABLE frmBars (
  Name        TEXT(60) NOT NULL COLLATE NOCASE,
  "Left"      INTEGER,
  Top         INTEGER,
  Width       INTEGER,
  Height      INTEGER,
  Value       TEXT,
  Visible     BOOLEAN DEFAULT -1,
  Tag         TEXT(20),
  CapEnglish  TEXT,
  TipEnglish  TEXT(255),
  HelpEnglish TEXT
);
CREATE UNIQUE INDEX frmBars_NameIndex ON frmBars(Name COLLATE NOCASE);

INSERT INTO frmBars(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                   TipEnglish, HelpEnglish) VALUES
  ('Me',     0,     0,  3000,  1500, NULL,  -1, 'C',  'Bars',
     NULL, 'The pictures of the value bars.');
