-- The floating picture of the keypad, four keys wide.

CREATE TABLE frmKeyPad (
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
CREATE UNIQUE INDEX frmKeyPad_NameIndex ON frmKeyPad(Name COLLATE NOCASE);

INSERT INTO frmKeyPad(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                     TipEnglish, HelpEnglish) VALUES
  ('Me',          900,   900,  4500,  3900, NULL,  -1, 'C',  'Keypad',
     NULL, 'The keys that carry an observation. A double click hides the window.'),
  ('fxgKeyPad',    60,    60,  4380,  3780, NULL,  -1, NULL, NULL, NULL, NULL);
