-- Messages.mdb: what the program says to the operator in a sentence of its own, by number. A language is a column that is
-- named like it; a column that a site has added outlives an update.

CREATE TABLE Version (
  Major SMALLINT NOT NULL,
  Minor INTEGER  NOT NULL
);
-- The next one is 1.2: an update takes 1.1 for "never".
INSERT INTO Version(Major, Minor) VALUES (1, 0);

CREATE TABLE Messages (
  ID      INTEGER NOT NULL PRIMARY KEY,  -- also the name of the wave file that speaks it, when there is one
  English TEXT
);

INSERT INTO Messages(ID, English) VALUES
  (401, 'A file of this name exists already. Please choose another name.');
