-- The results of scripts/evaluate: one row for each run, with the JSON that calibrate wrote.
CREATE TABLE result (
    name TEXT PRIMARY KEY,  -- name of the run's files without extension
    document TEXT NOT NULL CHECK (json_valid(document))
);

CREATE VIEW run AS
SELECT name,
       json_extract(document, '$.recording') AS recording,
       json_extract(document, '$.camera') AS camera,
       json_extract(document, '$.seed') AS seed,
       json_extract(document, '$.serial') AS serial,
       json_extract(document, '$.solved') AS solved,
       json_extract(document, '$.error') AS error,
       json_extract(document, '$.pairs') AS pairs,
       json_extract(document, '$.errorDeg') AS errorDeg,
       json_extract(document, '$.anglesDeg[0]') AS xDeg,
       json_extract(document, '$.anglesDeg[1]') AS yDeg,
       json_extract(document, '$.anglesDeg[2]') AS zDeg,
       json_extract(document, '$.uncertaintyDeg[0]') AS deviationXDeg,
       json_extract(document, '$.uncertaintyDeg[1]') AS deviationYDeg,
       json_extract(document, '$.uncertaintyDeg[2]') AS deviationZDeg,
       json_extract(document, '$.proof.beforePx') AS proofBeforePx,
       json_extract(document, '$.proof.afterPx') AS proofAfterPx,
       json_extract(document, '$.model.verdict') AS model,
       json_extract(document, '$.seconds.total') AS seconds
FROM result;

CREATE VIEW summary AS
SELECT camera, count(*) AS runs, sum(solved = 1) AS solved, sum(error IS NOT NULL) AS refused,
       round(avg(pairs), 1) AS pairs,
       round(avg(CASE WHEN place IN ((known + 1) / 2, (known + 2) / 2) THEN errorDeg END), 4) AS medianErrorDeg,
       round(max(errorDeg), 4) AS worstErrorDeg,
       round(avg(deviationXDeg), 4) AS deviationXDeg, round(avg(deviationYDeg), 4) AS deviationYDeg,
       round(avg(deviationZDeg), 4) AS deviationZDeg,
       round(avg(proofBeforePx), 2) AS proofBeforePx, round(avg(proofAfterPx), 2) AS proofAfterPx,
       sum(model <> 'rotation') AS modelDoubted, round(avg(seconds), 2) AS seconds
FROM (SELECT *, count(errorDeg) OVER (PARTITION BY camera) AS known,
             row_number() OVER (PARTITION BY camera ORDER BY errorDeg NULLS LAST) AS place
      FROM run)
GROUP BY camera ORDER BY camera DESC;

-- Sorted by error if the truth is known, otherwise by the largest standard deviation.
CREATE VIEW worst AS
SELECT recording, camera, seed, round(errorDeg, 4) AS errorDeg,
       round(max(deviationXDeg, deviationYDeg, deviationZDeg), 4) AS deviationDeg, round(proofAfterPx, 2) AS proofAfterPx,
       name || '.html' AS report
FROM run WHERE solved = 1
ORDER BY coalesce(errorDeg, max(deviationXDeg, deviationYDeg, deviationZDeg)) DESC LIMIT 10;

CREATE VIEW refused AS
SELECT recording, camera, coalesce(error, 'played to the end without a good solution') AS reason
FROM run WHERE solved IS NOT 1 ORDER BY recording, camera, seed;
